// Exports every example with everything that it has, as .gltf and as .glb, and lets the glTF validator judge the results.
// Usage: node validate.mjs ORVANE EXAMPLES_FOLDER VALIDATOR_FOLDER (the one that holds node_modules)

import { execFileSync } from 'node:child_process';
import { mkdtempSync, readdirSync, readFileSync, rmSync } from 'node:fs';
import { createRequire } from 'node:module';
import { tmpdir } from 'node:os';
import path from 'node:path';

// What of the format the validator does not take, by the section of docs/output-format.md that tells why. An issue passes only
// when it is of one of these codes, at a pointer and with a message of the given form. Each has to occur in some example.
const departures = {
    'Extension names': [
        { code: 'INVALID_EXTENSION_NAME_FORMAT', pointer: /^\/extensionsUsed\/1$/ },
        { code: 'UNSUPPORTED_EXTENSION', pointer: /^\/extensionsUsed\/1$/ },
        { code: 'UNDECLARED_EXTENSION', pointer: /\/extensions\/TF_display_states$/ },
        { code: 'UNDECLARED_EXTENSION', pointer: /^\/nodes\/\d+\/extensions\/Tessaforge_comments$/ },
        { code: 'UNDECLARED_EXTENSION', pointer: /^\/extensions\/Tessaforge_general_tables$/ },
        { code: 'UNDECLARED_EXTENSION', pointer: /^\/extensions\/Tessaforge_design_table$/ },
    ],
    Lights: [
        { code: 'UNEXPECTED_PROPERTY', pointer: /^\/extensions\/KHR_lights_punctual\/lights\/\d+\/positional$/ },
        { code: 'UNDEFINED_PROPERTY', pointer: /^\/extensions\/KHR_lights_punctual\/lights\/\d+$/, message: /'spot'/ },
        { code: 'NODE_MATRIX_NON_TRS', pointer: /^\/nodes\/\d+\/matrix$/ },
    ],
    'Animated nodes': [
        { code: 'ANIMATION_CHANNEL_TARGET_NODE_MATRIX', pointer: /^\/animations\/\d+\/channels\/\d+\/target/ },
    ],
    'Animation data': [
        { code: 'ANIMATION_SAMPLER_INPUT_ACCESSOR_WITHOUT_BOUNDS', pointer: /^\/animations\/\d+\/samplers\/\d+\/input$/ },
        { code: 'ANIMATION_SAMPLER_ACCESSOR_WITH_BYTESTRIDE', pointer: /^\/animations\/\d+\/samplers\/\d+\/(input|output)$/ },
        { code: 'BUFFER_VIEW_INVALID_BYTE_STRIDE', pointer: /^\/bufferViews\/\d+\/byteStride$/ },
        { code: 'BUFFER_VIEW_TARGET_OVERRIDE', pointer: /^\/animations\/\d+\/samplers\/\d+\/(input|output)$/ },
    ],
    Bounds: [
        {
            code: 'ACCESSOR_MAX_MISMATCH',
            message: /^Declared maximum value for this component \(1\.1754943508222875e-38\) does not match actual maximum \((-.*|0)\)/,
        },
    ],
    'Unused objects': [
        { code: 'UNUSED_OBJECT', pointer: /\/attributes\/TEXCOORD_0$/ },
        { code: 'UNUSED_OBJECT', pointer: /^\/materials\/\d+$/ },
        { code: 'UNUSED_OBJECT', pointer: /^\/textures\/\d+$/ },
        { code: 'UNUSED_OBJECT', pointer: /^\/nodes\/\d+$/ },
        { code: 'NODE_EMPTY', pointer: /^\/nodes\/\d+$/ },
    ],
    Tangents: [
        { code: 'MESH_PRIMITIVE_GENERATED_TANGENT_SPACE', pointer: /^\/meshes\/\d+\/primitives\/\d+\/material$/ },
    ],
};
const deviations = Object.values(departures).flat();

// A model without geometry gives empty lists, which no valid file has; these are there as parts of another one.
const withoutGeometry = ['mechanism/notes.tfgprt'];

const [orvane, examplesFolder, validatorFolder] = process.argv.slice(2).map((name) => path.resolve(name));
const validator = createRequire(path.join(validatorFolder, 'package.json'))('gltf-validator');

const examples = readdirSync(examplesFolder, { recursive: true, withFileTypes: true })
    .filter((entry) => entry.isFile() && /\.(tfgprt|tfgasm|step|stp)$/i.test(entry.name))
    .map((entry) => path.join(entry.parentPath ?? entry.path, entry.name))
    .filter((file) => !withoutGeometry.includes(path.relative(examplesFolder, file).replaceAll(path.sep, '/')))
    .sort();

function validate(file) {
    return validator.validateBytes(new Uint8Array(readFileSync(file)), {
        uri: path.basename(file),
        maxIssues: 0, // no limit
        externalResourceFunction: async (uri) =>
            new Uint8Array(readFileSync(path.join(path.dirname(file), decodeURIComponent(uri)))),
    });
}

const everything = ['--views', '--cameras', '--lights', '--animations', '--exploded-views'];
const faults = [];
const seen = new Set();

async function judge(example, output) {
    const name = `${path.relative(examplesFolder, example)} as ${path.extname(output)}`;
    const written = execFileSync(orvane, ['export', example, '-o', output, ...everything], { encoding: 'utf8' }).trim();
    const { issues, info } = await validate(written);
    for (const issue of issues.messages) {
        const deviation = deviations.find(
            ({ code, pointer = /^/, message = /^/ }) =>
                code === issue.code && pointer.test(issue.pointer ?? '') && message.test(issue.message),
        );
        if (deviation) {
            seen.add(deviation);
        } else {
            faults.push(`${name}: ${issue.code} at ${issue.pointer ?? `offset ${issue.offset}`}: ${issue.message}`);
        }
    }
    if (!(info?.totalTriangleCount > 0)) {
        faults.push(`${name}: no triangles`);
    }
    console.log(`${name}: ${info?.totalTriangleCount} triangles, ${issues.messages.length} remarks`);
}

const folder = mkdtempSync(path.join(tmpdir(), 'orvane-validator-'));
try {
    for (const [number, example] of examples.entries()) {
        for (const extension of ['gltf', 'glb']) {
            await judge(example, path.join(folder, `${number}.${extension}`));
        }
    }
} finally {
    rmSync(folder, { recursive: true });
}

if (examples.length === 0) {
    faults.push(`no examples in ${examplesFolder}`);
}
for (const deviation of deviations.filter((each) => !seen.has(each))) {
    faults.push(`the deviation ${deviation.code} occurs in no example`);
}
const page = readFileSync(new URL('../../docs/output-format.md', import.meta.url), 'utf8');
for (const section of Object.keys(departures)) {
    if (!page.includes(`\n### ${section}\n`)) {
        faults.push(`docs/output-format.md has no section ${section}`);
    }
}
for (const fault of faults) {
    console.error(fault);
}
process.exitCode = faults.length > 0 ? 1 : 0;

// Whether the sample library holds what the exporter and the catalog look for in it: the picture behind every name that stands
// for one, a preview for every appearance, and every picture that an appearance file names.
// Usage: node check.mjs ORVANE LIBRARY_FOLDER

import { execFileSync } from 'node:child_process';
import { existsSync, mkdtempSync, readFileSync, readdirSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import path from 'node:path';

// What an appearance of that name shows when it names no picture.
const polished = ['ash', 'beech', 'birch', 'cherry', 'maple', 'oak', 'pine', 'rosewood', 'teak'];
const colours = {
    ...Object.fromEntries(polished.map((wood) => [wood, `polished ${wood}.jpg`])),
    satinwood: 'satinwood.jpg',
    spruce: 'spruce.jpg',
    'blue marble': 'marble blue.jpg',
    'blue rough shiny marble': 'marble blue.jpg',
    'blue shiny marble': 'marble blue.jpg',
    'blue vein marble': 'marble blue vein.jpg',
    'green marble': 'marble green.jpg',
    'green vein marble': 'marble green vein.jpg',
    'pink marble': 'pink marble.jpg',
    'pink vein marble': 'marble pink vein.jpg',
    sandstone: 'sandstone.jpg',
    slate: 'slate.jpg',
};
const finishes = {
    burnished: 'n_burnished_n.png',
    burlap: 'n_burlap_n.png',
    brushed: 'n__brushed.png',
    scratch: 'n__scratch_n.png',
    knurled: 'n_knurled.png',
    spruce: 'n_spruce_n.png',
    frosted: 'n_plasticmt11040_normalmap.png',
    sandblasted: 'n_sandblasted.png',
    satin: 'n_satinwood_n.png',
    powdercoat: 'n_powdercoat_n.png',
    polypropylene: 'n_plasticpolypropylene_bump.jpg',
};

const [orvane, library] = process.argv.slice(2).map((name) => path.resolve(name));
const faults = [];

// The names of the pictures that an appearance called `name` brings along, or null for each that it has not.
function picturesOf(name, folder) {
    const model = path.join(folder, `${name}.tfgprt`);
    const appearance = { file: `${name}.tfm`, appliedTo: ['document'] };
    writeFileSync(model, JSON.stringify({ bodies: [{ shape: { box: { size: [1, 1, 1] } } }], appearances: [appearance] }));
    const output = path.join(folder, `${name.replaceAll(' ', '_')}.gltf`);
    const written = execFileSync(orvane, ['export', model, '-o', output, '--host-folder', library, '--force'], {
        encoding: 'utf8',
        stdio: ['ignore', 'pipe', 'ignore'],
    }).trim();
    const text = JSON.parse(readFileSync(written, 'utf8'));
    const material = text.materials.find((each) => each.name === name);
    const [colour, finish] = [material?.pbrMetallicRoughness.baseColorTexture, material?.normalTexture].map((use) => {
        const uri = use ? text.images[text.textures[use.index].source].uri : null;
        if (uri) {
            checkPicture(path.join(path.dirname(written), uri));
        }
        return uri;
    });
    return { colour, finish };
}

// By its first bytes: what came from a DDS file has become a PNG file.
function checkPicture(file) {
    const start = existsSync(file) ? readFileSync(file).subarray(0, 4).toString('latin1') : '';
    const wanted = file.endsWith('.png') ? '\x89PNG' : '\xff\xd8\xff';
    if (!start.startsWith(wanted)) {
        faults.push(`${path.basename(file)} is no ${path.extname(file)} file`);
    }
}

function filesBelow(folder, extension) {
    return readdirSync(folder, { recursive: true, withFileTypes: true })
        .filter((entry) => entry.isFile() && entry.name.endsWith(extension))
        .map((entry) => path.join(entry.parentPath ?? entry.path, entry.name));
}

const folder = mkdtempSync(path.join(tmpdir(), 'orvane-library-'));
try {
    for (const [table, kind] of [[colours, 'colour'], [finishes, 'finish']]) {
        for (const [name, wanted] of Object.entries(table)) {
            const found = picturesOf(name, folder)[kind];
            if (found !== wanted) {
                faults.push(`an appearance called ${name} has the ${kind} ${found}, not ${wanted}`);
            }
        }
    }
} finally {
    rmSync(folder, { recursive: true });
}

const data = path.join(library, 'data');
const appearances = filesBelow(path.join(data, 'graphics', 'Materials'), '.tfm');
const names = new Set();
for (const file of appearances) {
    const name = path.basename(file, '.tfm');
    const text = readFileSync(file, 'utf8');
    if (!/"tf_shader"\s+[^\s"]+\s/.test(text)) {
        faults.push(`${name} names no shader`);
    }
    if (names.has(name)) {
        faults.push(`two appearances are called ${name}, and previews lie in one folder`);
    }
    names.add(name);
    checkPicture(path.join(data, 'graphics', 'Images', 'preview', `${name}.jpg`));
    for (const [, picture] of text.matchAll(/"(Images\/[^"]+)"/g)) {
        if (!existsSync(path.join(data, picture))) {
            faults.push(`${name} names ${picture}, which is not there`);
        }
    }
}
if (appearances.length === 0) {
    faults.push('the library holds no appearance');
}

faults.forEach((fault) => console.error(fault));
console.log(`${appearances.length} appearances, ${Object.keys({ ...colours, ...finishes }).length} names`);
process.exitCode = faults.length > 0 ? 1 : 0;

// Exports the moving example, plays its motion study with three.js in Chromium, and compares where every node stands with
// what the model documents say of that moment.
// Usage: node playback.mjs ORVANE EXAMPLES_FOLDER MODULES_FOLDER (the one that holds node_modules)

import { execFileSync } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync } from 'node:fs';
import { createServer } from 'node:http';
import { createRequire } from 'node:module';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { pathToFileURL } from 'node:url';

const [orvane, examplesFolder, modulesFolder] = process.argv.slice(2).map((name) => path.resolve(name));
const modelFile = path.join(examplesFolder, 'mechanism', 'engine.tfgasm');
const studyName = 'One turn';
// Keys merge while they differ by less than 0.0001 in each number; three levels of nodes add up, and a rotation moves what lies
// within half a metre of its axis.
const tolerance = 5e-4;

const readModel = (file) => JSON.parse(readFileSync(file, 'utf8'));

// Placements as three.js matrices: the rows of the document's rotation block are columns there.
function makePlacementReader({ Matrix4, Quaternion, Vector3 }) {
    const partsOf = (placement = {}) => ({
        position: new Vector3(...(placement.translate ?? [0, 0, 0])),
        rotation: new Quaternion().setFromAxisAngle(
            new Vector3(...(placement.rotate?.axis ?? [0, 0, 1])).normalize(), ((placement.rotate?.degrees ?? 0) * Math.PI) / 180),
    });
    const compose = ({ position, rotation }) => new Matrix4().compose(position, rotation, new Vector3(1, 1, 1));
    const between = (a, b, share) => ({
        position: a.position.clone().lerp(b.position, share),
        rotation: a.rotation.clone().slerp(b.rotation, share),
    });
    return {
        matrixOf: (placement) => compose(partsOf(placement)),
        matrixAt(keys, time) {
            const next = keys.findIndex((key) => key.time > time);
            if (next <= 0) {
                return compose(partsOf(keys.at(next).placement));
            }
            const [a, b] = [keys[next - 1], keys[next]];
            return compose(between(partsOf(a.placement), partsOf(b.placement), (time - a.time) / (b.time - a.time)));
        },
    };
}

// Where every component stands at a time, by full name.
function expectedAt(three, time) {
    const { Matrix4 } = three;
    const placements = makePlacementReader(three);
    const top = readModel(modelFile);
    const configuration = top.configurations.find(({ name }) => name === top.configurations[0].name);
    const tracks = new Map(top.motionStudies.find(({ name }) => name === studyName).tracks.map((track) => [track.component, track]));
    const expected = new Map();
    const walk = (folder, components, prefix, above, overrides) => {
        for (const component of components) {
            const name = prefix + component.name;
            const track = tracks.get(name);
            const local = track ? placements.matrixAt(track.keys, time) : placements.matrixOf(overrides?.[name] ?? component.placement);
            const world = new Matrix4().multiplyMatrices(above, local);
            expected.set(name, world.toArray());
            const file = component.document && path.join(folder, component.document);
            if (component.components ?? file?.endsWith('.tfgasm')) {
                walk(file ? path.dirname(file) : folder, component.components ?? readModel(file).components, `${name}/`, world, overrides);
            }
        }
    };
    walk(path.dirname(modelFile), top.components, '', new Matrix4(), configuration.placements);
    return expected;
}

// In the page: loads the file, and tells where the nodes of the first scene stand at each time.
const page = `<!doctype html>
<script type="importmap">{ "imports": { "three": "/three/build/three.module.js", "three/addons/": "/three/examples/jsm/" } }</script>
<script type="module">
import * as THREE from 'three';
import { GLTFLoader } from 'three/addons/loaders/GLTFLoader.js';

window.play = async (clipName, times) => {
    const gltf = await new GLTFLoader().loadAsync('/model.glb');
    const scene = gltf.scenes[0];
    const { nodes } = gltf.parser.json;
    const objects = await Promise.all(nodes.map((node, index) => gltf.parser.getDependency('node', index)));
    // The loader makes names unique; the file's own ones make the full names.
    const named = [];
    const walk = (index, prefix) => {
        const name = prefix === null ? '' : prefix + nodes[index].name;
        named.push([name, objects[index]]);
        for (const child of nodes[index].children ?? []) {
            walk(child, name && name + '/');
        }
    };
    const root = gltf.parser.json.scenes[0].nodes.find((index) => nodes[index].children);
    walk(root, null);
    const mixer = new THREE.AnimationMixer(scene);
    const clip = gltf.animations.find(({ name }) => name === clipName);
    mixer.clipAction(clip).setLoop(THREE.LoopOnce).play();
    return {
        duration: clip.duration,
        places: times.map((time) => {
            mixer.setTime(time);
            scene.updateMatrixWorld(true);
            return named.filter(([name]) => name).map(([name, object]) => [name, object.matrixWorld.toArray()]);
        }),
    };
};
window.isReady = true;
</script>`;

async function playInBrowser(puppeteer, glb, times) {
    const threeFolder = path.join(modulesFolder, 'node_modules', 'three');
    const server = createServer((request, response) => {
        const name = decodeURIComponent(new URL(request.url, 'http://page').pathname);
        const file = path.join(threeFolder, name.slice('/three'.length));
        if (name === '/') {
            response.setHeader('Content-Type', 'text/html; charset=utf-8');
            response.end(page);
        } else if (name === '/model.glb') {
            response.end(readFileSync(glb));
        } else if (name.startsWith('/three/') && file.startsWith(threeFolder + path.sep)) {
            response.setHeader('Content-Type', 'text/javascript');
            response.end(readFileSync(file));
        } else {
            response.writeHead(404).end();
        }
    }).listen(0, '127.0.0.1');
    await new Promise((resolve) => server.once('listening', resolve));
    const browser = await puppeteer.launch({
        executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
        args: ['--no-sandbox', '--use-angle=swiftshader', '--disable-background-networking', '--disable-dev-shm-usage'],
        protocolTimeout: 300000,
    });
    try {
        const tab = await browser.newPage();
        await tab.goto(`http://127.0.0.1:${server.address().port}/`);
        await tab.waitForFunction('window.isReady', { timeout: 240000 });
        return await tab.evaluate((name, moments) => window.play(name, moments), studyName, times);
    } finally {
        await browser.close();
        server.close();
    }
}

const modules = createRequire(path.join(modulesFolder, 'package.json'));
const three = await import(pathToFileURL(path.join(modulesFolder, 'node_modules/three/build/three.module.js')));
const puppeteer = (await import(pathToFileURL(modules.resolve('puppeteer-core')))).default;

const folder = mkdtempSync(path.join(tmpdir(), 'orvane-playback-'));
try {
    const glb = path.join(folder, 'engine.glb');
    execFileSync(orvane, ['export', modelFile, '-o', glb, '--animations', '--quiet']);
    const study = readModel(modelFile).motionStudies.find(({ name }) => name === studyName);
    // Placements hold from frame to frame, so each is looked at a little behind its frame.
    const frames = Array.from({ length: Math.floor(study.duration * study.frameRate) }, (_, frame) => frame / study.frameRate);
    const { duration, places } = await playInBrowser(puppeteer, glb, frames.map((time) => time + 1e-4));
    const faults = [];
    if (Math.abs(duration - study.duration) > 2 / study.frameRate) {
        faults.push(`the animation lasts ${duration} s, the study ${study.duration} s`);
    }
    const moved = new Set();
    const start = expectedAt(three, 0);
    for (const [i, time] of frames.entries()) {
        const expected = expectedAt(three, time);
        const found = new Map(places[i]);
        for (const [name, matrix] of expected) {
            const shown = found.get(name);
            const error = shown ? Math.max(...matrix.map((value, at) => Math.abs(value - shown[at]))) : Infinity;
            if (!(error <= tolerance)) {
                faults.push(`${name} at ${time.toFixed(4)} s: off by ${error}`);
            }
            if (matrix.some((value, at) => Math.abs(value - start.get(name)[at]) > 10 * tolerance)) {
                moved.add(name);
            }
        }
    }
    if (moved.size < study.tracks.length) {
        faults.push(`only ${[...moved].join(', ') || 'nothing'} moves`);
    }
    console.log(`${frames.length} frames, ${places[0].length} nodes, ${moved.size} of them move`);
    if (faults.length > 0) {
        console.error(faults.slice(0, 20).join('\n'));
        process.exitCode = 1;
    }
} finally {
    rmSync(folder, { recursive: true, force: true });
}

// Draws a picture of an exported model with three.js in Chromium.
// Usage: node render.mjs MODULES_FOLDER MODEL PICTURE.png [OPTION...]  (MODULES_FOLDER: the one that holds node_modules)
//   --up y|z           the model's own upward axis (y)
//   --size 800x600     of the picture, in pixels
//   --from 30,20       where the camera stands: degrees around the upward axis, 0 in front (+z, or -y where z is up), and above the floor
//   --zoom 1           above 1: nearer
//   --aim=0,0,0        moves what the camera looks at, in parts of the model's size: right, up, to the front
//   --scene 0          which scene of the file
// The files that the page needs come from this computer alone.

import { createReadStream, writeFileSync } from 'node:fs';
import { createServer } from 'node:http';
import { createRequire } from 'node:module';
import path from 'node:path';
import { pathToFileURL } from 'node:url';
import { parseArgs } from 'node:util';

const { values: options, positionals } = parseArgs({
    allowPositionals: true,
    options: {
        up: { type: 'string', default: 'y' },
        size: { type: 'string', default: '800x600' },
        from: { type: 'string', default: '30,20' },
        zoom: { type: 'string', default: '1' },
        aim: { type: 'string', default: '0,0,0' },
        scene: { type: 'string', default: '0' },
    },
});
const numbers = (text, count, separator = ',') => {
    const found = text.split(separator).map(Number);
    if (found.length !== count || found.some((value) => !Number.isFinite(value))) {
        throw new Error(`${text}: expected ${count} numbers with ${separator} between them`);
    }
    return found;
};
if (positionals.length !== 3 || !['y', 'z'].includes(options.up)) {
    throw new Error('usage: render MODEL PICTURE.png [--up y|z] [--size 800x600] [--from 30,20] [--zoom 1] [--aim 0,0,0] [--scene 0]');
}
const [modulesFolder, model, picture] = positionals.map((name) => path.resolve(name));
const [width, height] = numbers(options.size, 2, 'x');
const [around, above] = numbers(options.from, 2);
const wish = {
    width,
    height,
    around,
    above,
    zUp: options.up === 'z',
    zoom: Number(options.zoom),
    aim: numbers(options.aim, 3),
    scene: Number(options.scene),
    model: `/model/${encodeURIComponent(path.basename(model))}`,
};

const page = `<!doctype html>
<script type="importmap">{ "imports": { "three": "/three/build/three.module.js", "three/addons/": "/three/examples/jsm/" } }</script>
<script type="module">
import * as THREE from 'three';
import { RoomEnvironment } from 'three/addons/environments/RoomEnvironment.js';
import { GLTFLoader } from 'three/addons/loaders/GLTFLoader.js';

const wish = ${JSON.stringify(wish)};
const oversampling = 2;

function lightUp(scene, renderer, box) {
    const maker = new THREE.PMREMGenerator(renderer);
    scene.environment = maker.fromScene(new RoomEnvironment(), 0.02).texture;
    scene.environmentIntensity = 0.6;
    const size = box.getSize(new THREE.Vector3()).length();
    const center = box.getCenter(new THREE.Vector3());
    const sun = new THREE.DirectionalLight(0xfff4e6, 1.7);
    sun.position.copy(center).addScaledVector(new THREE.Vector3(-0.45, 1, 0.6).normalize(), size * 1.5);
    sun.target.position.copy(center);
    sun.castShadow = true;
    sun.shadow.mapSize.set(2048, 2048);
    sun.shadow.radius = 10;
    sun.shadow.blurSamples = 24;
    sun.shadow.normalBias = size * 0.0006;
    Object.assign(sun.shadow.camera, { left: -size / 1.6, right: size / 1.6, top: size / 1.6, bottom: -size / 1.6, near: size * 0.1, far: size * 3 });
    scene.add(sun, sun.target);

    const floor = new THREE.Mesh(new THREE.PlaneGeometry(size * 20, size * 20), new THREE.ShadowMaterial({ opacity: 0.3 }));
    floor.rotation.x = -Math.PI / 2;
    floor.position.y = box.min.y - size * 0.0005;
    floor.receiveShadow = true;
    scene.add(floor);
}

function cameraFor(box) {
    const size = box.getSize(new THREE.Vector3());
    const camera = new THREE.PerspectiveCamera(24, wish.width / wish.height, size.length() * 0.02, size.length() * 40);
    const [a, e] = [wish.around, wish.above].map(THREE.MathUtils.degToRad);
    const towards = new THREE.Vector3(Math.sin(a) * Math.cos(e), Math.sin(e), Math.cos(a) * Math.cos(e));
    const target = box.getCenter(new THREE.Vector3()).add(new THREE.Vector3(...wish.aim).multiplyScalar(size.length()));
    // As near as it can be with all corners of the box in the picture.
    camera.position.copy(towards);
    camera.lookAt(0, 0, 0);
    camera.updateMatrixWorld();
    const turn = new THREE.Matrix4().extractRotation(camera.matrixWorld).invert();
    const tangent = Math.tan(THREE.MathUtils.degToRad(camera.fov / 2));
    let distance = 0;
    for (let corner = 0; corner < 8; ++corner) {
        const point = new THREE.Vector3(
            corner & 1 ? box.max.x : box.min.x, corner & 2 ? box.max.y : box.min.y, corner & 4 ? box.max.z : box.min.z,
        ).sub(target).applyMatrix4(turn);
        distance = Math.max(distance, point.z + Math.max(Math.abs(point.x) / camera.aspect, Math.abs(point.y)) / tangent);
    }
    camera.position.copy(target).addScaledVector(towards, distance * 1.06 / wish.zoom);
    camera.lookAt(target);
    return camera;
}

function backdrop() {
    const canvas = Object.assign(document.createElement('canvas'), { width: 16, height: 256 });
    const context = canvas.getContext('2d');
    const shade = context.createLinearGradient(0, 0, 0, 256);
    shade.addColorStop(0, '#dfe5ea');
    shade.addColorStop(0.55, '#eef1f3');
    shade.addColorStop(1, '#f7f7f6');
    context.fillStyle = shade;
    context.fillRect(0, 0, 16, 256);
    return canvas;
}

async function draw() {
    const gltf = await new GLTFLoader().loadAsync(wish.model);
    const model = gltf.scenes[wish.scene];
    if (wish.zUp) {
        model.rotation.x = -Math.PI / 2;
    }
    const renderer = new THREE.WebGLRenderer({ antialias: true, alpha: true, preserveDrawingBuffer: true });
    renderer.setSize(wish.width * oversampling, wish.height * oversampling);
    renderer.toneMapping = THREE.NeutralToneMapping;
    renderer.toneMappingExposure = 1.0;
    renderer.shadowMap.enabled = true;
    renderer.shadowMap.type = THREE.VSMShadowMap;
    const scene = new THREE.Scene();
    scene.add(model);
    model.traverse((object) => {
        if (object.isMesh) {
            for (const map of [object.material.map, object.material.normalMap]) {
                if (map) {
                    map.anisotropy = 8;
                    // The files ask for plain filtering; smaller copies keep distant pictures from flickering.
                    map.minFilter = THREE.LinearMipmapLinearFilter;
                    map.generateMipmaps = true;
                }
            }
            object.castShadow = !object.material.transparent;
            object.receiveShadow = true;
        }
    });
    const box = new THREE.Box3().setFromObject(model, true);
    lightUp(scene, renderer, box);
    renderer.render(scene, cameraFor(box));

    const canvas = Object.assign(document.createElement('canvas'), { width: wish.width, height: wish.height });
    const context = canvas.getContext('2d');
    context.imageSmoothingQuality = 'high';
    context.drawImage(backdrop(), 0, 0, wish.width, wish.height);
    context.drawImage(renderer.domElement, 0, 0, wish.width, wish.height);
    return canvas.toDataURL('image/png');
}
draw().then((url) => { window.drawn = { url }; }, (error) => { window.drawn = { error: String(error.stack ?? error) }; });
</script>`;

const folders = { three: path.join(modulesFolder, 'node_modules', 'three'), model: path.dirname(model) };
const types = { '.js': 'text/javascript', '.json': 'application/json', '.png': 'image/png', '.jpg': 'image/jpeg', '.jpeg': 'image/jpeg' };

function serve(request, response) {
    const [, kind, ...rest] = decodeURIComponent(new URL(request.url, 'http://page').pathname).split('/');
    if (kind === '') {
        response.setHeader('Content-Type', 'text/html; charset=utf-8');
        response.end(page);
        return;
    }
    const name = path.join(folders[kind] ?? '', ...rest);
    if (!(kind in folders) || !name.startsWith(folders[kind] + path.sep)) {
        response.writeHead(404).end();
        return;
    }
    response.setHeader('Content-Type', types[path.extname(name).toLowerCase()] ?? 'application/octet-stream');
    createReadStream(name)
        .on('error', () => response.writeHead(404).end())
        .pipe(response);
}

const puppeteer = (
    await import(pathToFileURL(createRequire(path.join(modulesFolder, 'package.json')).resolve('puppeteer-core')))
).default;
const server = createServer(serve).listen(0, '127.0.0.1');
await new Promise((resolve) => server.once('listening', resolve));
const browser = await puppeteer.launch({
    executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
    args: ['--no-sandbox', '--use-angle=swiftshader', '--enable-unsafe-swiftshader', '--disable-background-networking', '--disable-dev-shm-usage'],
    protocolTimeout: 300000,
});
try {
    const tab = await browser.newPage();
    const remarks = [];
    tab.on('console', (message) => remarks.push(message.text()));
    await tab.goto(`http://127.0.0.1:${server.address().port}/`);
    await tab.waitForFunction('window.drawn', { timeout: 240000 });
    const drawn = await tab.evaluate('window.drawn');
    if (drawn.error) {
        throw new Error([drawn.error, ...remarks].join('\n'));
    }
    writeFileSync(picture, Buffer.from(drawn.url.split(',')[1], 'base64'));
} finally {
    await browser.close();
    server.close();
}

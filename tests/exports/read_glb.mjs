// What Khronos' validator and three.js find in GLB files: a line of JSON for each file that comes in
// a line of the standard input. usage: read_glb.mjs NODE_MODULES
import fs from 'node:fs';
import path from 'node:path';
import readline from 'node:readline';
import { createRequire } from 'node:module';
import { pathToFileURL } from 'node:url';

const modules = path.resolve(process.argv[2]);
const require = createRequire(path.join(modules, 'x.js'));
const validator = require('gltf-validator');
const moduleOf = name => import(pathToFileURL(path.join(modules, name)).href);
const { GLTFLoader } = await moduleOf('three/examples/jsm/loaders/GLTFLoader.js');
const THREE = await moduleOf('three/build/three.module.js');

// Of a closed body, as it lies in the world; of a flat one its area.
function sizesOf(mesh) {
  const at = mesh.geometry.getAttribute('position');
  const index = mesh.geometry.getIndex();
  const corner = [0, 1, 2].map(() => new THREE.Vector3());
  const sizes = { volume: 0, area: 0, length: 0 };
  const count = index ? index.count : at.count;
  const read = (i, into) =>
    into.fromBufferAttribute(at, index ? index.getX(i) : i).applyMatrix4(mesh.matrixWorld);
  if (mesh.isLine) {
    for (let i = 0; i + 1 < count; i += 2) {
      sizes.length += read(i, corner[0]).distanceTo(read(i + 1, corner[1]));
    }
    return sizes;
  }
  const first = count > 0 ? read(0, new THREE.Vector3()) : null;
  for (let i = 0; i + 2 < count; i += 3) {
    for (let k = 0; k < 3; ++k) read(i + k, corner[k]).sub(first);
    const normal = new THREE.Vector3().crossVectors(
      corner[1].clone().sub(corner[0]), corner[2].clone().sub(corner[0]));
    sizes.area += normal.length() / 2;
    sizes.volume += corner[0].dot(normal) / 6;
  }
  return sizes;
}

function nodesOf(scene) {
  const nodes = [];
  scene.updateMatrixWorld(true);
  const visit = (object, above) => {
    const node = { name: object.userData.name ?? object.name, above, extras: object.userData };
    node.at = object.getWorldPosition(new THREE.Vector3()).toArray();
    if (object.isMesh || object.isLine) {
      Object.assign(node, sizesOf(object));
      node.low = new THREE.Box3().setFromObject(object).min.toArray();
      node.high = new THREE.Box3().setFromObject(object).max.toArray();
    }
    nodes.push(node);
    for (const child of object.children) visit(child, [...above, node.name]);
  };
  for (const object of scene.children) visit(object, []);
  return nodes;
}

async function read(file) {
  const bytes = new Uint8Array(fs.readFileSync(file));
  const report = await validator.validateBytes(bytes, { maxIssues: 100 });
  const bad = report.issues.messages.filter(message => message.severity < 2);
  const answer = { bad, errors: report.issues.numErrors, warnings: report.issues.numWarnings };
  const gltf = await new GLTFLoader().parseAsync(bytes.buffer, '');
  answer.nodes = nodesOf(gltf.scene);
  return answer;
}

for await (const file of readline.createInterface({ input: process.stdin })) {
  let answer;
  try {
    answer = await read(file);
  } catch (error) {
    answer = { failed: String(error) };
  }
  process.stdout.write(JSON.stringify(answer) + '\n');
}

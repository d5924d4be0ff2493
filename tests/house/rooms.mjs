// Holds the includes of the sources against the table of rooms in docs/architecture.md: a file includes its own room and
// those that the room's row names, a row names only rooms of the rows above it, and no files include one another in a
// circle.
//
//   node tests/house/rooms.mjs [FILE INCLUDE]
//
// Prints each fault on a line of its own, and ends with status 1 where there is any. With arguments it judges as if FILE
// included INCLUDE too, both told from src/.
import { readdirSync, readFileSync } from 'node:fs';
import { dirname, join, relative, sep } from 'node:path';
import { fileURLToPath } from 'node:url';

const root = join(dirname(fileURLToPath(import.meta.url)), '..', '..');
const sources = join(root, 'src');
const faults = [];

/** The rows of the table, top down: [{ room, mayUse }]. */
function readTable() {
    const rows = [];
    const page = readFileSync(join(root, 'docs', 'architecture.md'), 'utf8');
    for (const line of page.split('\n')) {
        const [, folder, , mayUse] = line.split('|').map((cell) => cell.trim());
        const room = /^`([a-z/]+)\/`$/.exec(folder ?? '')?.[1];
        if (!room || mayUse === undefined) {
            continue;
        }
        const named = [...mayUse.matchAll(/`([a-z/]+)\/`/g)].map((match) => match[1]);
        const above = rows.map((row) => row.room);
        for (const name of named.filter((one) => !above.includes(one))) {
            faults.push(`docs/architecture.md: ${room}/ may not use ${name}/, which does not stand above it`);
        }
        rows.push({ room, mayUse: new Set(mayUse.includes('all of the above') ? above : named) });
    }
    return rows;
}

function sourceFiles(folder) {
    return readdirSync(folder, { withFileTypes: true }).flatMap((entry) => {
        const path = join(folder, entry.name);
        return entry.isDirectory() ? sourceFiles(path) : /\.(h|cpp)$/.test(entry.name) ? [path] : [];
    });
}

/** What a file includes of the sources: [{ target, line }], targets relative to them. */
function includesOf(file) {
    const lines = readFileSync(join(sources, file), 'utf8').split('\n');
    return lines.flatMap((text, at) => {
        const target = /^\s*#\s*include\s*"([^"]+)"/.exec(text)?.[1];
        return target ? [{ target, line: at + 1 }] : [];
    });
}

const rows = readTable();
/** The row of the innermost room that holds a file. */
function rowOf(file) {
    return rows
        .filter((row) => file.startsWith(`${row.room}/`))
        .sort((a, b) => b.room.length - a.room.length)[0];
}

const files = sourceFiles(sources).map((file) => relative(sources, file).split(sep).join('/')).sort();
const includes = new Map(files.map((file) => [file, includesOf(file)]));
const [plantedFile, plantedTarget] = process.argv.slice(2);
if (plantedFile) {
    includes.get(plantedFile).push({ target: plantedTarget, line: 0 });
}

for (const [file, targets] of includes) {
    const own = rowOf(file);
    if (!own) {
        faults.push(`src/${file}: no row of docs/architecture.md tells of its room`);
        continue;
    }
    for (const { target, line } of targets) {
        const other = rowOf(target);
        if (!includes.has(target)) {
            faults.push(`src/${file}:${line}: there is no src/${target}`);
        } else if (other && other !== own && !own.mayUse.has(other.room)) {
            faults.push(`src/${file}:${line}: ${own.room}/ may not use ${other.room}/ (${target})`);
        }
    }
}

const finished = new Set();
function findCircle(file, path) {
    if (path.includes(file)) {
        faults.push(`a circle of includes: ${[...path.slice(path.indexOf(file)), file].join(' -> ')}`);
    } else if (!finished.has(file)) {
        for (const { target } of includes.get(file) ?? []) {
            findCircle(target, [...path, file]);
        }
        finished.add(file);
    }
}
files.forEach((file) => findCircle(file, []));

faults.forEach((fault) => console.error(fault));
console.log(`${files.length} files in ${rows.length} rooms: ${faults.length} faults`);
process.exit(faults.length === 0 && files.length > 0 ? 0 : 1);

// Checks how the sources are laid out: which folder may include which, no cycles between components,
// no file over 400 lines, not too many files a folder, and that ARCHITECTURE.md names files that exist.
//
//   node scripts/check_layout.mjs            names each deviation, and fails if there is any
//   node scripts/check_layout.mjs --figures  prints the figures of the product's files instead
import { execFileSync } from 'node:child_process';
import { existsSync, readFileSync, readdirSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';

const root = join(dirname(fileURLToPath(import.meta.url)), '..');

// What every stage of kkbuild may include, console.h for failures, paths and progress.
const builder = ['text', 'data', 'dictionary/console.h'];
const windowFolder = ['text', 'win32', 'settings', 'data', 'forms', 'app/state.h',
  'app/resources/resource_ids.h'];
// Folder: the folders whose headers its files may include besides its own. A name that ends in .h is
// that header alone.
const mayInclude = {
  text: [],
  win32: ['text'],
  settings: ['text', 'win32'],
  'data/dialect': ['text', 'data/error.h', 'data/text_functions.h'],
  data: ['text', 'data/dialect'],
  'forms/appearance': ['text', 'win32'],
  forms: ['text', 'win32', 'forms/appearance'],
  'capture/nhw32': ['text', 'win32', 'capture/nhw32/controls', 'capture/nhw32/uia'],
  'capture/nhw32/controls': ['text', 'win32', 'capture/nhw32'],
  'capture/nhw32/uia': ['text', 'win32', 'capture/nhw32'],
  capture: [...windowFolder, 'capture/nhw32'],
  'capture/why': ['text', 'win32', 'settings', 'capture/nhw32', 'capture/probe.h',
    'capture/further_windows.h'],
  lookup: [...windowFolder, 'capture/screen_word.h'],
  query: [...windowFolder, 'capture/screen_word.h'],
  app: ['text', 'win32', 'settings', 'data', 'forms', 'capture', 'lookup', 'query', 'app/resources'],
  'dictionary/source': builder,
  'dictionary/translation': [...builder, 'dictionary/source'],
  'dictionary/gloss/names': [...builder, 'dictionary/source', 'dictionary/gloss'],
  'dictionary/gloss': [...builder, 'dictionary/source', 'dictionary/translation',
    'dictionary/gloss/names'],
  'dictionary/arrange': [...builder, 'dictionary/source', 'dictionary/translation',
    'dictionary/gloss'],
  'dictionary/database': [...builder, 'dictionary/source', 'dictionary/translation',
    'dictionary/arrange'],
  'dictionary/check': [...builder, 'dictionary/source', 'dictionary/translation',
    'dictionary/arrange', 'dictionary/database'],
  'dictionary/coverage': [...builder, 'dictionary/source', 'dictionary/translation',
    'dictionary/database'],
  dictionary: ['text', 'data', 'dictionary/source', 'dictionary/translation', 'dictionary/gloss',
    'dictionary/arrange', 'dictionary/database', 'dictionary/check', 'dictionary/coverage'],
};
// Components that may know one another: the host of word capture opens the popup, which starts
// capture again when it closes.
const mayBeCycle = ['capture/frm_screen_word, capture/frm_screen_word_meaning'];
// What is implemented, or declared, under another name.
const partOf = {
  'capture/screen_word': 'capture/frm_screen_word',
  'forms/form_messages': 'forms/form',
  'lookup/frm_sub_lookup': 'lookup/frm_sub',
};
// These are built without Windows; of all system headers that end in .h they may know these, and only
// their sources x_win.cpp the others.
const portableHeaders = ['sqlite3.h', 'sys/resource.h', 'libxml/HTMLparser.h', 'zlib.h'];
const withoutWindows = /^(text|data|dictionary)(\/|$)/;
const maxLines = 400;
const maxFiles = (folder) => (folder === 'forms' ? 45 : 25);

const isSource = (name) => /\.(h|cpp)$/.test(name);
const isGenerated = (text) => text.split('\n', 2).some((line) => /^\/\/ Generated/.test(line));

/** The sources of a folder, with what they include: their own folder's files only. */
function readFolder(folder) {
  return readdirSync(join(root, folder)).filter(isSource).map((name) => {
    const path = `${folder}/${name}`;
    const text = readFileSync(join(root, path), 'utf8');
    return {
      path, folder, text,
      lines: text.split('\n').length - 1,
      generated: isGenerated(text),
      includes: [...text.matchAll(/^#include "([^"]+)"/gm)].map((match) => match[1]),
      systemIncludes: [...text.matchAll(/^#include <([^>]+)>/gm)].map((match) => match[1]),
    };
  });
}

const files = Object.keys(mayInclude).flatMap(readFolder);

/** x.h, x.cpp and x_win.cpp are one component. */
function componentOf(path) {
  const name = path.replace(/(_win)?\.(h|cpp)$/, '');
  return partOf[name] ?? name;
}

function repositorySources() {
  return execFileSync('git', ['ls-files', '*.h', '*.cpp'], { cwd: root, encoding: 'utf8' })
    .trim().split('\n');
}

function includeFaults() {
  const faults = [];
  for (const { path, folder, includes, systemIncludes } of files) {
    for (const header of includes) {
      const from = dirname(header);
      const allowed = from === folder || mayInclude[folder].includes(from) ||
        mayInclude[folder].includes(header);
      if (!allowed) faults.push(`${path} includes ${header}; ${folder}/ may not know it`);
    }
    if (!withoutWindows.test(folder) || path.endsWith('_win.cpp')) continue;
    for (const header of systemIncludes.filter((name) => name.endsWith('.h'))) {
      if (!portableHeaders.includes(header)) {
        faults.push(`${path} includes ${header}; only x_win.cpp may`);
      }
    }
  }
  return faults;
}

/** Strongly connected components of more than one node (Tarjan). */
function cycles() {
  const edges = new Map();
  for (const { path, includes } of files) {
    const from = componentOf(path);
    if (!edges.has(from)) edges.set(from, new Set());
    for (const header of includes) {
      if (componentOf(header) !== from) edges.get(from).add(componentOf(header));
    }
  }
  const index = new Map(), low = new Map(), stack = [], found = [];
  const visit = (node) => {
    index.set(node, index.size);
    low.set(node, index.get(node));
    stack.push(node);
    for (const next of edges.get(node) ?? []) {
      if (!index.has(next)) {
        visit(next);
        low.set(node, Math.min(low.get(node), low.get(next)));
      } else if (stack.includes(next)) {
        low.set(node, Math.min(low.get(node), index.get(next)));
      }
    }
    if (low.get(node) === index.get(node)) {
      const group = stack.splice(stack.indexOf(node));
      const names = group.sort().join(', ');
      if (group.length > 1 && !mayBeCycle.includes(names)) found.push(names);
    }
  };
  for (const node of edges.keys()) if (!index.has(node)) visit(node);
  return found;
}

function sizeFaults() {
  const faults = files.filter(({ lines, generated }) => lines > maxLines && !generated)
    .map(({ path, lines }) => `${path} has ${lines} lines; at most ${maxLines} are allowed`);
  const outside = /^(tests|bench|scripts)\//;
  for (const path of repositorySources()) {
    if (outside.test(path)) {
      const lines = readFileSync(join(root, path), 'utf8').split('\n').length - 1;
      if (lines > maxLines) faults.push(`${path} has ${lines} lines; at most ${maxLines} are allowed`);
    } else if (mayInclude[dirname(path)] === undefined && dirname(path) !== 'app/resources') {
      faults.push(`${path} lies in a folder that this script does not know`);
    }
  }
  for (const folder of Object.keys(mayInclude)) {
    const count = files.filter((file) => file.folder === folder).length;
    if (count > maxFiles(folder)) {
      faults.push(`${folder}/ has ${count} files; at most ${maxFiles(folder)} are allowed`);
    }
  }
  return faults;
}

/** What looks like a place in the repository, in sentences and drawings, exists. */
function architectureFaults() {
  const page = join(root, 'ARCHITECTURE.md');
  const text = existsSync(page) ? readFileSync(page, 'utf8') : '';
  const places = [
    ...text.matchAll(/(?<![\w/.])[a-z]\w*\/[\w./-]*\w\/?|(?<![\w/.])[a-z]\w*\/(?!\S)/g),
    ...text.matchAll(/\b(?!x(?:_win)?\.)\w+\.(?:h|cpp|md|sh|mjs|cmake)\b/g),
  ].map(([place]) => place).filter((place) => place.includes('/') || !text.includes(`/${place}`));
  if (places.length === 0) return ['ARCHITECTURE.md names no files'];
  return places.filter((place) => !existsSync(join(root, place)))
    .map((place) => `ARCHITECTURE.md names ${place}, which does not exist`);
}

/** Lines with code, and lines with nothing but a comment. */
function count(text) {
  const lines = text.split('\n').map((line) => line.trim()).filter((line) => line !== '');
  const comments = lines.filter((line) => line.startsWith('//')).length;
  return { code: lines.length - comments, comments };
}

function printFigures() {
  const written = files.filter((file) => !file.generated);
  const sizes = written.map(({ lines }) => lines).sort((a, b) => a - b);
  const share = (part, whole) => `${((100 * part) / whole).toFixed(1)} %`;
  const ratio = (some) => {
    const sum = some.map(({ text }) => count(text))
      .reduce((a, b) => ({ code: a.code + b.code, comments: a.comments + b.comments }));
    return (sum.comments / sum.code).toFixed(2);
  };
  const headers = written.filter(({ path }) => path.endsWith('.h'));
  const lonely = headers.filter(({ path }) => files.filter(({ path: other, includes }) =>
    includes.includes(path) && componentOf(other) !== componentOf(path)).length <= 1);
  const folders = Object.keys(mayInclude)
    .map((folder) => [folder, files.filter((file) => file.folder === folder).length])
    .sort((a, b) => b[1] - a[1]);
  const code = written.map(({ text }) => count(text).code).reduce((a, b) => a + b);
  console.log(`product files                       ${written.length}`);
  console.log(`lines of code                       ${code}`);
  console.log(`median file, lines                  ${sizes[Math.floor(sizes.length / 2)]}`);
  console.log(`files under 25 lines                ${share(sizes.filter((n) => n < 25).length, sizes.length)}`);
  console.log(`longest file, lines                 ${sizes.at(-1)}`);
  console.log(`headers one other component uses    ${share(lonely.length, headers.length)}`);
  console.log(`comment lines to code lines         ${ratio(written)}`);
  console.log(`  in sources                        ${ratio(written.filter(({ path }) => path.endsWith('.cpp')))}`);
  console.log(`fullest folders                     ${folders.slice(0, 4).map(([f, n]) => `${f} ${n}`).join(', ')}`);
  console.log(`cycles between components           ${cycles().length}`);
}

if (process.argv[2] === '--figures') {
  printFigures();
} else {
  const faults = [
    ...includeFaults(),
    ...cycles().map((names) => `these include one another: ${names}`),
    ...sizeFaults(),
    ...architectureFaults(),
  ];
  for (const fault of faults) console.log(fault);
  process.exit(faults.length === 0 ? 0 : 1);
}

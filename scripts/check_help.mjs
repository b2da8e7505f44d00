// Checks the help page: every link and picture leads somewhere, every picture has a text in its
// place and is shown, and nothing comes from a network.
import { existsSync, readdirSync, readFileSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';

const folder = join(dirname(fileURLToPath(import.meta.url)), '..', 'help');
const page = readFileSync(process.argv[2] ?? join(folder, 'help.htm'), 'utf8');
const failures = [];

const ids = new Set([...page.matchAll(/\sid="([^"]*)"/g)].map((match) => match[1]));
const targets = [...page.matchAll(/\s(?:href|src)="([^"]*)"/g)].map((match) => match[1]);
for (const target of targets) {
  if (/^[a-z]+:|^\/\//i.test(target)) {
    failures.push(`${target} needs a network`);
  } else if (target.startsWith('#')) {
    if (!ids.has(target.slice(1))) failures.push(`there is no place ${target}`);
  } else if (!existsSync(join(folder, target))) {
    failures.push(`there is no file ${target}`);
  }
}

const pictures = [...page.matchAll(/<img\b[^>]*>/g)].map((match) => match[0]);
for (const picture of pictures) {
  if (!/\salt="[^"]+"/.test(picture)) failures.push(`no text in place of ${picture}`);
}
const shown = new Set(targets);
for (const file of readdirSync(join(folder, 'pictures'))) {
  if (!shown.has(`pictures/${file}`)) failures.push(`pictures/${file} is not shown`);
}
if (!/<meta charset="utf-8">/.test(page)) failures.push('the page does not name its encoding');
if (/@import|url\(/.test(page)) failures.push('the style asks for files');
if (targets.length === 0 || pictures.length === 0) failures.push('the page holds no links or pictures');

for (const failure of failures) console.log(`help.htm: ${failure}`);
process.exit(failures.length === 0 ? 0 : 1);

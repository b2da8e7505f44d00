// Reads what a GoogleTest executable left behind and prints "PASSED FAILED REPEATED" on standard
// output, the last being how many acts of a user the tests repeated; the failures themselves go to
// standard error.
//
//   node gtest_results.mjs JSON LOG STATUS SECONDS
//
// STATUS is the executable's exit status, SECONDS the time it was allowed. A test that skipped
// itself counts as failed: nobody may take it for one that passed.
import { existsSync, readFileSync } from 'node:fs';

const [jsonFile, logFile, statusText, seconds] = process.argv.slice(2);
const status = Number(statusText);
const tell = (text) => process.stderr.write(text + '\n');

/** Counts from the report that the executable wrote at its regular end. */
function countReport(report) {
  let passed = 0;
  let failed = 0;
  for (const suite of report.testsuites) {
    for (const test of suite.testsuite) {
      const name = `${suite.name}.${test.name}`;
      if (/(^|[./])DISABLED_/.test(name)) {
        failed++;
        tell(`FAILED ${name}: it is disabled`);
        continue;
      }
      if (test.status !== 'RUN') continue;
      if (test.failures) {
        failed++;
        tell(`FAILED ${name}`);
        for (const failure of test.failures) tell('  ' + failure.failure.replaceAll('\n', '\n  '));
      } else if (test.result !== 'COMPLETED') {
        failed++;
        tell(`FAILED ${name}: it was skipped`);
      } else {
        passed++;
      }
    }
  }
  if (passed + failed === 0) {
    failed++;
    const filter = readLog().match(/^Note: Google Test filter = (.*)$/m)?.[1];
    tell(filter ? `FAILED: no test matches the filter '${filter}'` : 'FAILED: no test ran');
  } else if (status !== 0 && failed === 0) {
    failed++;
    tell(`FAILED: every test passed, but the executable ended with status ${status}`);
    tell(lastLines());
  }
  return [passed, failed];
}

/** Counts from the log of an executable that was ended in the middle. */
function countLog() {
  const log = readLog();
  const passed = log.match(/^\[       OK \] /gm)?.length ?? 0;
  const failures = new Set([...log.matchAll(/^\[  FAILED  \] (\S+?),? /gm)].map((m) => m[1]));
  const started = [...log.matchAll(/^\[ RUN      \] (\S+)/gm)].map((m) => m[1]);
  const announced = Number(log.match(/^\[==========\] Running (\d+) test/m)?.[1] ?? 0);
  const last = started.at(-1) ?? '(before its first test)';
  const late = status === 124 || status === 137;
  for (const name of failures) tell(`FAILED ${name}`);
  tell(`FAILED ${last}: ` +
    (late ? `still running after ${seconds} s` : `the executable ended with status ${status}`) +
    ` (${Math.max(0, announced - started.length)} tests did not run)`);
  tell(lastLines());
  return [passed, failures.size + 1];
}

function readLog() {
  return existsSync(logFile) ? readFileSync(logFile, 'utf8').replaceAll('\r\n', '\n') : '';
}

function lastLines() {
  return readLog().split('\n').slice(-30).map((line) => '  ' + line).join('\n');
}

function readReport() {
  try {
    return JSON.parse(readFileSync(jsonFile, 'utf8'));
  } catch {
    return null;
  }
}

const report = status <= 1 ? readReport() : null;
// A native executable that finds leaks at its end has written its report all the same.
const counts = report ? countReport(report) : countLog();
// Written by support::reportRetry.
const repeated = readLog().match(/^\[ONCE MORE \] /gm)?.length ?? 0;
process.stdout.write([...counts, repeated].join(' ') + '\n');

// What the tests of the module and of the page share.
import { spawnSync } from "node:child_process";
import { mkdtempSync, readFileSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import path from "node:path";
import { fileURLToPath } from "node:url";

export const ROOT = fileURLToPath(new URL("../..", import.meta.url));
export const OUT = path.join(ROOT, "build/web/out");
const COMMAND = path.join(ROOT, "build/release/bin/linewright");
export const LOCALES = { en: "enUS", de: "deDE", fr: "frFR", ja: "jaJP" };

/** A folder for a run, which goes when it ends. */
export const folder = mkdtempSync(path.join(tmpdir(), "linewright-web-"));
process.on("exit", () => rmSync(folder, { recursive: true, force: true }));

/** Runs the release command on settings of its own; returns its output. Refused rows are no failure. */
export function linewright(words, input) {
  const places = ["--config-dir", path.join(folder, "config"), "--app-dir", path.join(folder, "app")];
  const run = spawnSync(COMMAND, [...words, ...places], { input, encoding: "utf8", maxBuffer: 2 ** 30 });
  if (run.error) throw run.error;
  if (run.status !== 0 && run.status !== 3) throw new Error(`linewright ${words.join(" ")}: ${run.stderr}`);
  return run.stdout;
}

export async function loadModule(language = "en") {
  const { Linewright } = await import(path.join(OUT, "module/linewright.mjs"));
  return new Linewright(new WebAssembly.Module(readFileSync(path.join(OUT, "module/linewright.wasm"))), language);
}

/** The rows of a text with commas and quotes as RFC 4180 has them. */
export function csvRows(text) {
  const rows = [[]];
  for (const [, quoted, plain, end] of text.matchAll(/(?:"((?:[^"]|"")*)"|([^",\r\n]*))(,|\r?\n|$)/g)) {
    rows.at(-1).push(quoted === undefined ? plain : quoted.replaceAll('""', '"'));
    if (end === "") break;
    if (end !== ",") rows.push([]);
  }
  if (rows.at(-1).length === 1 && rows.at(-1)[0] === "") rows.pop();
  return rows;
}

export const csvField = (text) => (/[",\r\n]/.test(text) ? `"${text.replaceAll('"', '""')}"` : text);

/** Numbers that are the same on every run. */
export function randomNumbers(seed) {
  let state = seed >>> 0;
  return (limit) => {
    state = (state + 0x6d2b79f5) >>> 0;
    let mixed = Math.imul(state ^ (state >>> 15), state | 1);
    mixed ^= mixed + Math.imul(mixed ^ (mixed >>> 7), mixed | 61);
    return ((mixed ^ (mixed >>> 14)) >>> 0) % limit;
  };
}

/** Data that each type takes, and some that surprises. */
export const SAMPLES = {
  "classic-postnet": ["555551237", "12345", "12345678901"], postnet: ["555551237", "123456789014"],
  imb: ["01234567094987654321", "0123456709498765432101234", "0123456709498765432101234567891"],
  "classic-codabar": ["1234-5678"], codabar: ["31117013206375", "$12.50"],
  "classic-code128a": ["ABC-123"], "classic-code128b": ["Abc-123"], "classic-code128c": ["0123456789"],
  code128: ["AST-2024-00017", "(01)09501101530003(17)251231(10)AB-123", "1234567890", "~202100~029x"],
  "classic-code39": ["FIX-0042"], "classic-code39ascii": ["Fix-0042"], code39: ["FIX-0042", "A$B"],
  ean8: ["9638507", "96385074"], "classic-ean13": ["400638133393"], ean13: ["400638133393", "4006381333931", "4006381333932"],
  "classic-jan13": ["490123456789"], jan13: ["490123456789"],
  "classic-upca": ["03600029145", "0360002914512345"], upca: ["036000291452", "0360002914512"],
  "classic-upce": ["0123456"], upce: ["0425261", "01234565"],
  "classic-i2of5": ["1540014128876"], i2of5: ["15400141288763", "123"], "classic-i2of5-text": ["1540014128876"],
  "i2of5-text": ["15400141288763"], "classic-msi": ["1234567"], msi: ["1234567", "80523"],
};

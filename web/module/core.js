const UTF8 = 1, STRICT = 2, FITTED = 4, BEARER_BARS = 8, MARGIN_MARKS = 16, TEXT = 32, NO_TEXT = 64,
  ARTICLE_NUMBER = 128;
const LOCALES = { en: "enUS", de: "deDE", fr: "frFR", ja: "jaJP" };
const POINTS_PER_MM = 72 / 25.4;
const PREFERENCES = {
  code39CheckMode: "mod43", code39UseAsterisk: true, i2of5CheckDigit: true,
  msiFirstCheck: "mod10", msiSecondCheck: "none", codabarStart: "A", codabarStop: "D",
};
const CODE39_CHECKS = { none: 0, mod10: 1, mod43: 2 };
const MSI_CHECKS = { none: 0, mod10: 1, mod11: 2 };
const CODABAR_LETTERS = { A: 65, B: 66, C: 67, D: 68 };

const encoder = new TextEncoder();
const decoder = new TextDecoder();
const bytesOf = (data) => (typeof data === "string" ? encoder.encode(data) : data);
const points = (millimetres) => (millimetres == null ? NaN : millimetres * POINTS_PER_MM);

function numberOf(name, table, value) {
  if (!Object.hasOwn(table, value)) throw new RangeError(`${name} is none of ${Object.keys(table).join(", ")}`);
  return table[value];
}

/** The encoders of one WebAssembly.Module. */
class Linewright {
  #module;
  #exports;
  #language;
  #preferences = PREFERENCES;

  constructor(module, language = "en") {
    this.#module = module;
    this.language = language;
  }

  get language() {
    return this.#language;
  }

  set language(language) {
    numberOf("the language", LOCALES, language);
    this.#language = language;
    this.#restart();
  }

  get preferences() {
    return { ...this.#preferences };
  }

  set preferences(changes) {
    for (const name in changes)
      if (!Object.hasOwn(PREFERENCES, name)) throw new RangeError(`no preference is named ${name}`);
    const wanted = { ...this.#preferences, ...changes };
    this.#exports.SetPreferences(
      numberOf("code39CheckMode", CODE39_CHECKS, wanted.code39CheckMode),
      wanted.code39UseAsterisk ? 1 : 0, wanted.i2of5CheckDigit ? 1 : 0,
      numberOf("msiFirstCheck", MSI_CHECKS, wanted.msiFirstCheck),
      numberOf("msiSecondCheck", MSI_CHECKS, wanted.msiSecondCheck),
      numberOf("codabarStart", CODABAR_LETTERS, wanted.codabarStart),
      numberOf("codabarStop", CODABAR_LETTERS, wanted.codabarStop));
    this.#preferences = wanted;
  }

  types() {
    return this.#call("ListTypes", []);
  }

  request({ type, data, utf8 = typeof data === "string", check = 0, ratio = 2 }) {
    return this.#call("Request", [type, data], utf8 ? UTF8 : 0, check, ratio);
  }

  encode(wish) {
    return this.#call("Encode", ...this.#wish(wish));
  }

  draw(wish, drawing = {}) {
    const [input, flags, ...rest] = this.#wish(wish);
    const wanted = flags | (drawing.fit ? FITTED : 0) | (drawing.bearer ? BEARER_BARS : 0) |
      (drawing.marginMarks ? MARGIN_MARKS : 0) |
      (drawing.text == null ? 0 : drawing.text ? TEXT : NO_TEXT);
    return this.#call("Draw", input, wanted, ...rest, points(drawing.xDimension),
      points(drawing.height), points(drawing.quietZone), points(drawing.barWidthReduction),
      drawing.dpi ?? NaN);
  }

  #wish({ type, data, utf8 = typeof data === "string", check = false, ratio = 2, strict = false, gtin = false }) {
    return [[type, data], (utf8 ? UTF8 : 0) | (strict ? STRICT : 0) | (gtin ? ARTICLE_NUMBER : 0), check ? 1 : 0, ratio];
  }

  #restart() {
    // What the C library would ask of a system: a console, an exit, to be told of memory.
    const imports = {};
    for (const { module, name } of WebAssembly.Module.imports(this.#module))
      (imports[module] ??= {})[name] = () => 0;
    this.#exports = new WebAssembly.Instance(this.#module, imports).exports;
    this.#exports._initialize();
    this.#write([LOCALES[this.#language]]);
    this.#exports.Start();
    this.preferences = {};
  }

  /** Writes texts behind one another, and returns the length of the first. */
  #write(texts) {
    const parts = texts.map(bytesOf);
    const size = parts.reduce((sum, part) => sum + part.length, 0);
    const start = this.#exports.Input(size);
    const memory = new Uint8Array(this.#exports.memory.buffer, start, size);
    let place = 0;
    for (const part of parts) {
      memory.set(part, place);
      place += part.length;
    }
    return parts.length > 0 ? parts[0].length : 0;
  }

  #answer() {
    const { memory, AnswerBytes, AnswerLength } = this.#exports;
    return decoder.decode(new Uint8Array(memory.buffer, AnswerBytes(), AnswerLength()));
  }

  #call(name, input, ...numbers) {
    try {
      if (input.length > 0) numbers.unshift(this.#write(input));
      this.#exports[name](...numbers);
    } catch (trap) {
      if (!(trap instanceof WebAssembly.RuntimeError)) throw trap;
      const sentence = this.#answer();
      this.#restart();
      throw new Error(sentence || trap.message);
    }
    return JSON.parse(this.#answer());
  }
}

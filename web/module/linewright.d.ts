/** A language of hints, warnings and names. */
export type Language = "en" | "de" | "fr" | "ja";

/** A barcode type. Lengths are in millimetres, font sizes in points. */
export interface BarcodeType {
  /** The name by which the plug-in knows it, such as "_QVT_BARCODE_EAN13_". */
  name: string;
  /** The name that people type, such as "ean13". */
  shortName: string;
  /** The name that people see, in the language. */
  displayText: string;
  /** What it is for and what it takes, in the language. */
  description: string;
  group: "retail" | "logistics" | "postal" | "library" | "classic";
  family: "classic" | "current";
  /** Who decides whether the symbol gets a check digit. */
  check: "none" | "always" | "on request" | "by preference";
  /** Whether wide bars can be 2, 2.5 or 3 times as wide as narrow ones. */
  hasRatio: boolean;
  /** Whether common scanners know it. */
  hasScanner: boolean;
  /** Whether the height of the bars is the standard's. */
  hasFixedHeight: boolean;
  xDimension: number;
  xLeast: number;
  xLargest: number;
  /** null for digits to be read by people, which any font shows. */
  font: { family: string; file: string; size: number; printsText: boolean } | null;
}

/** A barcode as it is wished for. */
export interface Wish {
  /** Any name of a type: the plug-in's, a short one, or a usual one such as "EAN-13" or "GS1-128". */
  type: string;
  /** Text, which is sent as UTF-8 to be converted; or bytes as they are. */
  data: string | Uint8Array;
  /** Whether data is UTF-8 to be converted: so is text, unless stated. */
  utf8?: boolean;
  check?: boolean;
  /** 2, 2.5 or 3. */
  ratio?: number;
  /** Whether a warning is a refusal. */
  strict?: boolean;
  /** Whether data is an article number (GTIN, ISBN, ISSN), to be brought to the type's form. */
  gtin?: boolean;
}

/** How a drawing departs from its type's; lengths in millimetres. */
export interface DrawingWish {
  xDimension?: number;
  height?: number;
  quietZone?: number;
  barWidthReduction?: number;
  /** Bars end on the dots of this resolution. */
  dpi?: number;
  /** Takes the nearest X-dimension of whole dots. */
  fit?: boolean;
  /** What the bars carry, below them; where the font prints no text, unless stated. */
  text?: boolean;
  bearer?: boolean;
  marginMarks?: boolean;
}

/** The plug-in's bare answer to a request. */
export interface Answer {
  status: number;
  recognised: boolean;
  /** The data block after the call, and its text form. */
  hex: string;
  text: string;
  hint: string;
}

/** What became of a wish. */
export interface Outcome {
  type: string;
  shortName: string;
  /** null where it was not the plug-in that refused. */
  status: number | null;
  /** The font string and its text form; not there for a refusal. */
  hex?: string;
  text?: string;
  /** What people read below the bars. */
  printed?: string;
  /** What scanners read. */
  barsSay?: string;
  /** Why it was refused, and the plug-in's hint; not there for what was made. */
  message?: string;
  /** What was made of an article number that had another form. */
  note?: string;
  hint?: string;
  warnings: string[];
}

/** An outcome and, where it was made, its drawing; lengths in millimetres. */
export interface Drawing extends Outcome {
  drawingWarnings?: string[];
  svg?: string;
  width?: number;
  height?: number;
  xDimension?: number;
  module?: number;
  barHeight?: number;
  /** Points; 0 without a font. */
  fontSize?: number;
}

/** What the classic types heed. */
export interface Preferences {
  code39CheckMode: "none" | "mod10" | "mod43";
  code39UseAsterisk: boolean;
  i2of5CheckDigit: boolean;
  msiFirstCheck: "none" | "mod10" | "mod11";
  msiSecondCheck: "none" | "mod10" | "mod11";
  codabarStart: "A" | "B" | "C" | "D";
  codabarStop: "A" | "B" | "C" | "D";
}

/** The encoders. Nothing is asked of a network or a file. */
export class Linewright {
  /** Compile the module from `linewright.wasm`, by WebAssembly.compile or compileStreaming. */
  constructor(module: WebAssembly.Module, language?: Language);
  language: Language;
  /** Assigning changes the ones that are named. */
  get preferences(): Preferences;
  set preferences(changes: Partial<Preferences>);
  types(): BarcodeType[];
  /** Sends one request, a type name byte for byte, as other programs do; `check` is 0 to 255. */
  request(request: {
    type: string | Uint8Array;
    data: string | Uint8Array;
    utf8?: boolean;
    check?: number;
    ratio?: number;
  }): Answer;
  encode(wish: Wish): Outcome;
  /** Throws an Error with a sentence where a drawing cannot be had, such as one too long for a page. */
  draw(wish: Wish, drawing?: DrawingWish): Drawing;
}

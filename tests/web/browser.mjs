// Debian's chromium without a window, driven through its two pipes.
import { spawn } from "node:child_process";
import { mkdirSync, renameSync, writeFileSync } from "node:fs";
import path from "node:path";
import { folder } from "./support.mjs";

export class Browser {
  #calls = new Map();
  #listeners = [];
  #number = 0;
  #rest = "";

  constructor() {
    this.process = spawn("chromium", ["--headless=new", "--no-sandbox", "--disable-gpu", "--hide-scrollbars", "--disable-dev-shm-usage",
      "--remote-debugging-pipe", `--user-data-dir=${path.join(folder, "profile")}`, "--lang=en", "about:blank"],
    { stdio: ["ignore", "ignore", "ignore", "pipe", "pipe"] });
    this.process.on("exit", () => {
      for (const { reject } of this.#calls.values()) reject(new Error("the browser ended"));
    });
    this.process.stdio[4].setEncoding("utf8").on("data", (text) => this.#read(text));
  }

  #read(text) {
    const messages = (this.#rest + text).split("\0");
    this.#rest = messages.pop();
    for (const message of messages.map((line) => JSON.parse(line))) {
      const call = this.#calls.get(message.id);
      this.#calls.delete(message.id);
      if (call && message.error) call.reject(new Error(`${call.method}: ${message.error.message}`));
      else if (call) call.resolve(message.result);
      else for (const listener of this.#listeners) listener(message);
    }
  }

  send(method, params = {}, sessionId = undefined) {
    const id = ++this.#number;
    this.process.stdio[3].write(`${JSON.stringify({ id, method, params, sessionId })}\0`);
    return new Promise((resolve, reject) => this.#calls.set(id, { method, resolve, reject }));
  }

  listen(listener) {
    this.#listeners.push(listener);
  }

  async open(address) {
    const { targetId } = await this.send("Target.createTarget", { url: "about:blank" });
    const { sessionId } = await this.send("Target.attachToTarget", { targetId, flatten: true });
    const page = new Page(this, sessionId);
    await page.start(address);
    return page;
  }

  async close() {
    const ended = new Promise((done) => this.process.once("exit", done));
    await this.send("Browser.close").catch(() => {});
    await ended;
  }
}

class Page {
  /** What went wrong in the page: exceptions, and errors in its console. */
  faults = [];
  /** Files that were saved, one after another. */
  saved = [];
  requests = [];
  names = new Map();

  constructor(browser, sessionId) {
    this.browser = browser;
    this.send = (method, params) => browser.send(method, params, sessionId);
    browser.listen(({ method, params, sessionId: from }) => {
      if (method === "Browser.downloadWillBegin") this.names.set(params.guid, params.suggestedFilename);
      if (method === "Browser.downloadProgress" && params.state === "completed") {
        const file = path.join(this.folder, `${this.saved.length}-${this.names.get(params.guid)}`);
        renameSync(path.join(this.folder, params.guid), file);
        this.saved.push(file);
      }
      if (from !== sessionId) return;
      if (method === "Runtime.exceptionThrown") this.faults.push(params.exceptionDetails.exception?.description ?? params.exceptionDetails.text);
      if (method === "Log.entryAdded" && params.entry.level === "error") this.faults.push(params.entry.text);
      if (method === "Network.requestWillBeSent") this.requests.push(params.request.url);
      if (method === "Page.loadEventFired") this.loaded?.();
    });
  }

  async start(address) {
    this.folder = path.join(folder, `saved-${Math.random()}`);
    mkdirSync(this.folder);
    await this.browser.send("Browser.setDownloadBehavior", { behavior: "allowAndName", downloadPath: this.folder, eventsEnabled: true });
    await this.browser.send("Browser.grantPermissions", { permissions: ["clipboardReadWrite", "clipboardSanitizedWrite"] });
    for (const domain of ["Page", "Runtime", "Log", "Network"]) await this.send(`${domain}.enable`);
    await this.go(address);
  }

  async go(address) {
    const loaded = new Promise((done) => (this.loaded = done));
    await this.send("Page.navigate", { url: address });
    await loaded;
  }

  async run(expression) {
    const { result, exceptionDetails } = await this.send("Runtime.evaluate", { expression, awaitPromise: true, returnByValue: true, userGesture: true });
    if (exceptionDetails) throw new Error(exceptionDetails.exception?.description ?? exceptionDetails.text);
    return result.value;
  }

  async size(width, height = 900, scale = 1) {
    await this.send("Emulation.setDeviceMetricsOverride", { width, height, deviceScaleFactor: scale, mobile: false });
  }

  async scheme(value) {
    await this.send("Emulation.setEmulatedMedia", { features: [{ name: "prefers-color-scheme", value }] });
  }

  async type(text) {
    await this.send("Input.insertText", { text });
  }

  async press(key, code = key, keyCode = 0, modifiers = 0) {
    for (const type of ["keyDown", "keyUp"])
      await this.send("Input.dispatchKeyEvent", { type, key, code, windowsVirtualKeyCode: keyCode, modifiers, ...(type === "keyDown" && key === "Enter" ? { text: "\r" } : key === " " && type === "keyDown" ? { text: " " } : {}) });
  }

  async click(selector) {
    const { x, y } = await this.run(`(() => { const e = document.querySelector(${JSON.stringify(selector)}); e.scrollIntoView({ block: "center" });
      const r = e.getBoundingClientRect(); return { x: r.x + r.width / 2, y: r.y + r.height / 2 }; })()`);
    for (const type of ["mousePressed", "mouseReleased"])
      await this.send("Input.dispatchMouseEvent", { type, x, y, button: "left", clickCount: 1 });
  }

  /** Waits until an expression is true; fails after a minute. */
  async until(expression) {
    for (let tries = 0; tries < 600; ++tries) {
      const value = await this.run(expression);
      if (value) return value;
      await new Promise((done) => setTimeout(done, 100));
    }
    throw new Error(`never came true: ${expression}`);
  }

  async picture(file, isWhole = true) {
    const { cssContentSize } = await this.send("Page.getLayoutMetrics");
    const { data } = await this.send("Page.captureScreenshot", isWhole
      ? { captureBeyondViewport: true, clip: { x: 0, y: 0, width: cssContentSize.width, height: cssContentSize.height, scale: 1 } } : {});
    writeFileSync(file, Buffer.from(data, "base64"));
  }
}

"use strict";
function crc32(bytes) {
  let crc = -1;
  for (const byte of bytes) {
    crc ^= byte;
    for (let bit = 0; bit < 8; bit++) crc = (crc >>> 1) ^ (crc & 1 ? 0xedb88320 : 0);
  }
  return ~crc >>> 0;
}

/** A PNG file with its resolution, which browsers leave out: a chunk pHYs behind the header. */
function withResolution(png, dpi) {
  const chunk = new DataView(new ArrayBuffer(21));
  const perMetre = Math.round(dpi / 0.0254);
  [[0, 9], [4, 0x70485973], [8, perMetre], [12, perMetre]].forEach(([place, number]) => chunk.setUint32(place, number));
  chunk.setUint8(16, 1);
  chunk.setUint32(17, crc32(new Uint8Array(chunk.buffer, 4, 13)));
  const headerEnd = 33;
  return new Blob([png.subarray(0, headerEnd), chunk.buffer, png.subarray(headerEnd)]);
}

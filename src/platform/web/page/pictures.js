// Pictures and fonts of the disc, decoded by the browser.

'use strict';

class Pictures {
  #pictures = new Map();
  #last = 0;

  constructor(disc) { this.disc = disc; }

  add(picture) {
    this.#pictures.set(++this.#last, picture);
    return this.#last;
  }

  get(number) { return this.#pictures.get(number); }

  drop(number) {
    this.get(number)?.close?.();
    this.#pictures.delete(number);
  }

  async load(path) {
    const bytes = await this.disc.bytes(path);
    try {
      const picture = await createImageBitmap(new Blob([bytes]), { colorSpaceConversion: 'none' });
      return { number: this.add(picture), width: picture.width, height: picture.height };
    } catch {
      return { number: 0, width: 0, height: 0 };
    }
  }
}

class Fonts {
  #faces = new Map();

  constructor(disc) { this.disc = disc; }

  async add(path) {
    const bytes = await this.disc.bytes(path);
    const names = bytes ? FamilyNames(bytes) : [];
    const faces = [];
    for (const name of names) {
      try {
        const face = await new FontFace(name, bytes).load();
        document.fonts.add(face);
        faces.push(face);
      } catch {
        // A file that is not a font changes nothing.
      }
    }
    this.#faces.set(path, [...(this.#faces.get(path) ?? []), faces]);
  }

  remove(path) {
    for (const face of this.#faces.get(path)?.pop() ?? []) document.fonts.delete(face);
  }
}

/**
 * The family names in a TrueType or OpenType file: OpenType 1.9, table `name`, name ID 1. Names of
 * platform 3 are UTF-16, big endian.
 */
function FamilyNames(bytes) {
  const view = new DataView(bytes);
  const names = new Set();
  try {
    const tables = view.getUint16(4);
    for (let i = 0; i < tables; ++i) {
      const record = 12 + 16 * i;
      if (view.getUint32(record) !== 0x6e616d65) continue;  // "name"
      const table = view.getUint32(record + 8);
      const strings = table + view.getUint16(table + 4);
      for (let j = 0; j < view.getUint16(table + 2); ++j) {
        const entry = table + 6 + 12 * j;
        if (view.getUint16(entry) !== 3 || view.getUint16(entry + 6) !== 1) continue;
        const text = new DataView(bytes, strings + view.getUint16(entry + 10), view.getUint16(entry + 8));
        names.add(new TextDecoder('utf-16be').decode(text));
      }
    }
  } catch (error) {
    if (!(error instanceof RangeError)) throw error;
  }
  return [...names];
}

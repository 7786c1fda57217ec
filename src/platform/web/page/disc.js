// The disc's files: a table of what is there, and each file's contents when they are asked for.

'use strict';

/** Where the program sees the disc's drive. */
const kDriveRoot = '/disc';

class Disc {
  /**
   * @param index what the export wrote: `title`, and `files` by path with `size` and, where it matters,
   *     `kind` (of a program), `as` (the converted file that is played instead) or `data` (base64)
   */
  constructor(index) {
    this.title = index.title;
    this.files = index.files;
  }

  /** The entry of a path of the program; undefined for what is not on the disc. */
  entry(path) { return this.files[path.slice(kDriveRoot.length + 1)]; }

  /** An address from which the browser reads a file as it is; with `played`, as it is played. */
  address(path, played = false) {
    const entry = this.entry(path);
    if (entry.data !== undefined) {
      entry.blob ??= URL.createObjectURL(new Blob([Uint8Array.from(atob(entry.data), (c) => c.charCodeAt(0))]));
      return entry.blob;
    }
    const name = played && entry.as ? entry.as : `disc/${path.slice(kDriveRoot.length + 1)}`;
    return name.split('/').map(encodeURIComponent).join('/');
  }

  /** Null if the file is not there or cannot be fetched. */
  async bytes(path, played = false) {
    if (!this.entry(path)) return null;
    try {
      const answer = await fetch(this.address(path, played));
      return answer.ok ? await answer.arrayBuffer() : null;
    } catch {
      return null;
    }
  }

  /** Lays every name into the program's file system; what the program reads by itself gets its contents. */
  async layOut(fileSystem) {
    for (const [name, entry] of Object.entries(this.files)) {
      const path = `${kDriveRoot}/${name}`;
      fileSystem.mkdirTree(path.slice(0, path.lastIndexOf('/')));
      const contents = entry.read ? await this.bytes(path) : null;
      fileSystem.writeFile(path, new Uint8Array(contents ?? 0));
    }
  }
}

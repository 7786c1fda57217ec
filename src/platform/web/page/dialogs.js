// What the page itself shows: message boxes, offered programs and the first screen.

'use strict';

/** What every browser shows in a tab. */
const kShown = /\.(txt|html?|pdf|gif|jpe?g|png|bmp|svg|webp)$/i;

/** Codes of failed starts, as the program knows them. */
const StartCode = { started: 33, accessDenied: 5 };

class Dialogs {
  #box = null;

  constructor(disc, onChange) {
    this.disc = disc;
    this.onChange = onChange;
  }

  get messageOpen() { return this.#box !== null; }

  /** A box of the page with a title and what `fill` adds; `onClose` is told when it is gone. */
  #open(title, fill, onClose) {
    const box = document.createElement('dialog');
    box.className = 'box';
    const heading = document.createElement('h1');
    heading.textContent = title;
    box.append(heading);
    fill(box);
    const close = document.createElement('button');
    close.textContent = kText.close;
    close.addEventListener('click', () => box.close());
    box.append(close);
    box.addEventListener('close', () => {
      box.remove();
      onClose();
    });
    document.body.append(box);
    box.showModal();
    close.focus();
    return box;
  }

  showMessage(text, title, critical) {
    this.#box = this.#open(title, (box) => {
      const paragraph = document.createElement('p');
      paragraph.className = critical ? 'critical' : '';
      paragraph.textContent = text.replace(/\r\n/g, '\n');
      box.append(paragraph);
    }, () => {
      this.#box = null;
      this.onChange();
    });
  }

  start(path, address) {
    if (/^(https?|mailto):/i.test(address)) {
      window.open(address, '_blank', 'noopener');
      return StartCode.started;
    }
    const entry = this.disc.entry(path);
    if (!entry) return StartCode.accessDenied;
    const kind = entry.kind ?? 'document';
    if (kind === 'document' && kShown.test(path)) {
      window.open(this.disc.address(path), '_blank', 'noopener');
    } else {
      this.#offer(path, kind);
    }
    return StartCode.started;
  }

  #offer(path, kind) {
    const name = path.slice(path.lastIndexOf('/') + 1);
    this.#open(name, (box) => {
      const paragraph = document.createElement('p');
      paragraph.textContent = kText.kinds[kind] ?? kText.kinds.document;
      const link = document.createElement('a');
      link.href = this.disc.address(path);
      link.download = name;
      link.textContent = kText.download;
      box.append(paragraph, link);
    }, () => {});
  }

  closeAll() {
    for (const box of document.querySelectorAll('dialog.box')) box.close();
  }
}

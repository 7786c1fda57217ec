// The program's windows: each is a canvas on the desk, the part of the page that is the program's screen.

'use strict';

/** Cursors by the program's numbers: arrow, hourglass, hand, open and closed hand. */
const kCursors = ['default', 'wait', 'pointer', 'grab', 'grabbing'];

class DeskWindow {
  #icon = null;

  constructor(desk, number, wholeScreen) {
    this.desk = desk;
    this.number = number;
    this.wholeScreen = wholeScreen;
    this.caption = '';
    this.mask = null;
    this.canvas = document.createElement('canvas');
    this.canvas.className = 'window';
    this.canvas.hidden = true;
    this.context = this.canvas.getContext('2d');
    desk.element.append(this.canvas);
  }

  place(left, top, width, height) {
    this.box = { left, top, width, height };
    const { zoom, cssPixel } = this.desk;
    const style = this.canvas.style;
    style.left = `${left * zoom * cssPixel}px`;
    style.top = `${top * zoom * cssPixel}px`;
    style.width = `${width * zoom * cssPixel}px`;
    style.height = `${height * zoom * cssPixel}px`;
    if (this.canvas.width === width * zoom && this.canvas.height === height * zoom) return;
    this.canvas.width = width * zoom;
    this.canvas.height = height * zoom;
  }

  /** Numbers in fours: left, top, width and height of rectangles, in program pixels. */
  shape(numbers) {
    this.mask = new OffscreenCanvas(this.box.width, this.box.height);
    const context = this.mask.getContext('2d');
    for (let i = 0; i + 3 < numbers.length; i += 4)
      context.fillRect(numbers[i], numbers[i + 1], numbers[i + 2], numbers[i + 3]);
  }

  name(caption) {
    this.caption = caption;
    this.canvas.setAttribute('aria-label', caption);
  }

  show(shown) {
    this.canvas.hidden = !shown;
    if (!this.wholeScreen) return;
    if (shown) {
      document.documentElement.requestFullscreen?.().catch(() => {});
    } else if (document.fullscreenElement) {
      document.exitFullscreen().catch(() => {});
    }
  }

  minimise(minimised) {
    this.canvas.hidden = minimised;
    this.#icon?.remove();
    this.#icon = null;
    if (!minimised) return;
    this.#icon = document.createElement('button');
    this.#icon.className = 'icon';
    this.#icon.textContent = this.caption || document.title;
    this.#icon.addEventListener('click', () => this.desk.restore(this.number));
    document.body.append(this.#icon);
  }

  pointer(number) { this.canvas.style.cursor = kCursors[number] ?? 'default'; }

  close() {
    this.show(false);
    this.#icon?.remove();
    this.canvas.remove();
  }
}

class Desk {
  #windows = new Map();
  #last = 0;

  /**
   * Takes the page's size as it is now for the screen's. `zoom` is the largest whole number of device pixels
   * for one of the program's at which the main window fits.
   */
  constructor(element, onRestore) {
    this.element = element;
    this.restore = onRestore;
    this.cssPixel = 1 / window.devicePixelRatio;
    const across = Math.floor(document.documentElement.clientWidth * window.devicePixelRatio);
    const down = Math.floor(document.documentElement.clientHeight * window.devicePixelRatio);
    this.zoom = Math.max(1, Math.min(Math.floor(across / Desk.least.width), Math.floor(down / Desk.least.height)));
    this.width = Math.max(Desk.least.width, Math.floor(across / this.zoom));
    this.height = Math.max(Desk.least.height, Math.floor(down / this.zoom));
    element.style.width = `${this.width * this.zoom * this.cssPixel}px`;
    element.style.height = `${this.height * this.zoom * this.cssPixel}px`;
    this.#fit();
    this.onResize = () => this.#fit();
    window.addEventListener('resize', this.onResize);
  }

  /** A page that is too small shows the whole desk, smaller. */
  #fit() {
    const page = document.documentElement;
    const wide = parseFloat(this.element.style.width);
    const high = parseFloat(this.element.style.height);
    this.shrink = Math.min(1, page.clientWidth / wide, page.clientHeight / high);
    this.element.style.transform = this.shrink < 1 ? `scale(${this.shrink})` : '';
  }

  /** The program's pixel under a pointer event. */
  toProgram(event) {
    const box = this.element.getBoundingClientRect();
    const pixel = this.shrink * this.cssPixel * this.zoom;
    return { x: Math.floor((event.clientX - box.left) / pixel), y: Math.floor((event.clientY - box.top) / pixel) };
  }

  open(wholeScreen) {
    this.#windows.set(++this.#last, new DeskWindow(this, this.#last, wholeScreen));
    return this.#last;
  }

  window(number) { return this.#windows.get(number); }

  close(number) {
    this.window(number).close();
    this.#windows.delete(number);
  }

  stack(numbers) {
    numbers.forEach((number, order) => { this.window(number).canvas.style.zIndex = order; });
  }

  /** The window of the whole screen, if one is shown. */
  wholeScreen() {
    return [...this.#windows.values()].find((each) => each.wholeScreen && !each.canvas.hidden) ?? null;
  }

  clear() {
    for (const number of [...this.#windows.keys()]) this.close(number);
    window.removeEventListener('resize', this.onResize);
  }
}

/** The design's main window: what a page has to hold, in program pixels. */
Desk.least = { width: 667, height: 496 };

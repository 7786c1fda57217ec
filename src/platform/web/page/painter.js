// Paints the program's windows: fills, pictures and text, all in program pixels.

'use strict';

class Painter {
  #window = null;
  #context = null;
  #area = null;

  constructor(desk, pictures) {
    this.desk = desk;
    this.pictures = pictures;
    /** How many times a window was painted, for whoever measures. */
    this.paints = 0;
  }

  begin(window, left, top, width, height) {
    ++this.paints;
    this.#window = this.desk.window(window);
    this.#area = { left, top, width, height };
    this.#context = this.#window.context;
    const context = this.#context;
    context.save();
    context.setTransform(this.desk.zoom, 0, 0, this.desk.zoom, 0, 0);
    this.pushClip(left, top, width, height);
    context.clearRect(left, top, width, height);
  }

  /** Cuts off what lies outside the window's outline. */
  end() {
    const context = this.#context;
    if (this.#window.mask) {
      context.globalCompositeOperation = 'destination-in';
      context.imageSmoothingEnabled = false;
      context.drawImage(this.#window.mask, 0, 0);
    }
    this.popClip();
    context.restore();
  }

  pushClip(left, top, width, height) {
    const context = this.#context;
    context.save();
    context.beginPath();
    context.rect(left, top, width, height);
    context.clip();
  }

  popClip() { this.#context.restore(); }

  fill(left, top, width, height, colour) {
    this.#context.fillStyle = colour;
    this.#context.fillRect(left, top, width, height);
  }

  draw(number, left, top, width, height) {
    const picture = this.pictures.get(number);
    if (!picture) return;
    const film = picture instanceof HTMLVideoElement;
    // A pixel of the art is a square of the screen's; only films and what changes its size are smoothed.
    this.#context.imageSmoothingEnabled = film || picture.width !== width || picture.height !== height;
    this.#context.imageSmoothingQuality = 'high';
    this.#context.drawImage(picture, left, top, width, height);
  }

  text(text, box, families, bold, size, colour, right) {
    const context = this.#context;
    context.font = FontOf(families, bold, size);
    context.fillStyle = colour;
    context.textBaseline = 'alphabetic';
    const metrics = context.measureText('');
    const ascent = Math.round(metrics.fontBoundingBoxAscent);
    const height = ascent + Math.round(metrics.fontBoundingBoxDescent);
    const widthOf = (part) => context.measureText(part).width;
    WrappedLines(text, box.width, widthOf).forEach((line, index) => {
      const left = right ? box.left + box.width - widthOf(line) : box.left;
      context.fillText(line, left, box.top + ascent + index * height);
    });
  }
}

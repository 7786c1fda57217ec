// What the user does, in the order in which he did it. The program takes it out of the queue.

'use strict';

/** The kinds that WebHost.cpp knows by the same numbers. */
const InputKind = {
  move: 0, press: 1, secondPress: 2, release: 3, leave: 4, restore: 5, endWholeScreen: 6,
};

/** The program's bits for the browser's mouse buttons: left, middle, right. */
const kButtonBits = [1, 4, 2];

class InputQueue {
  #events = [];
  #wake = null;
  #lastPress = null;
  #listeners = new AbortController();

  /** @param {Desk} desk that the pointer moves over */
  constructor(desk) {
    const surface = desk.element;
    const listen = (name, handler) => surface.addEventListener(name, handler, { signal: this.#listeners.signal });
    const post = (kind, event, detail = 0) => this.post(kind, desk.toProgram(event), detail);
    listen('pointermove', (event) => post(InputKind.move, event));
    listen('pointerdown', (event) => {
      surface.setPointerCapture(event.pointerId);
      // A finger has not been anywhere before it presses.
      post(InputKind.move, event);
      const again = event.pointerType === 'mouse' && this.#isSecondPress(event);
      post(again ? InputKind.secondPress : InputKind.press, event, kButtonBits[event.button] ?? 0);
      event.preventDefault();
    });
    const release = (event) => post(InputKind.release, event, kButtonBits[event.button] ?? 1);
    listen('pointerup', release);
    listen('pointercancel', release);
    listen('pointerleave', (event) => {
      if (event.pointerType === 'mouse') this.post(InputKind.leave, { x: 0, y: 0 });
    });
    listen('contextmenu', (event) => event.preventDefault());
  }

  /** What browsers and desktops take for a double click: twice the same place within half a second. */
  #isSecondPress(event) {
    const before = this.#lastPress;
    const near = before && Math.hypot(event.clientX - before.x, event.clientY - before.y) < 5;
    const again = Boolean(near && event.button === before.button && event.timeStamp - before.time < 500);
    this.#lastPress = again ? null : { x: event.clientX, y: event.clientY, button: event.button, time: event.timeStamp };
    return again;
  }

  post(kind, place = { x: 0, y: 0 }, detail = 0) {
    const last = this.#events.at(-1);
    // Of moves in a row only the last one counts.
    if (kind === InputKind.move && last?.kind === kind) this.#events.pop();
    this.#events.push({ kind, x: place.x, y: place.y, detail });
    this.wake();
  }

  next() { return this.#events.shift() ?? null; }

  close() { this.#listeners.abort(); }

  /** Ends a wait: there is something to take in. */
  wake() {
    this.#wake?.();
    this.#wake = null;
  }

  /** Resolves when there is input, after `milliseconds` at the longest; negative for no limit. */
  wait(milliseconds) {
    if (this.#events.length > 0) return Promise.resolve();
    return new Promise((done) => {
      const timer = milliseconds >= 0 ? setTimeout(() => this.wake(), milliseconds) : 0;
      this.#wake = () => {
        clearTimeout(timer);
        done();
      };
    });
  }
}

// Puts the page together: one quiet screen with the disc's title, and after a click the program.

'use strict';

/** What one run of the program needs of the page. */
class Page {
  constructor(disc, onEnd) {
    this.onEnd = onEnd;
    const wake = () => this.input.wake();
    this.desk = new Desk(document.getElementById('desk'), (number) => this.input.post(InputKind.restore, undefined, number));
    this.input = new InputQueue(this.desk);
    this.pictures = new Pictures(disc);
    this.fonts = new Fonts(disc);
    this.painter = new Painter(this.desk, this.pictures);
    this.media = new Media(disc, this.pictures, wake);
    this.dialogs = new Dialogs(disc, wake);
    this.onFullScreen = () => {
      if (!document.fullscreenElement && this.desk.wholeScreen()) this.input.post(InputKind.endWholeScreen);
    };
    document.addEventListener('fullscreenchange', this.onFullScreen);
  }

  end() {
    document.removeEventListener('fullscreenchange', this.onFullScreen);
    this.input.close();
    this.media.closeAll();
    this.dialogs.closeAll();
    this.desk.clear();
    this.onEnd();
  }
}

const overlay = document.getElementById('overlay');
const startButton = document.getElementById('start');

/** The program with the disc laid out for it, not yet started. */
async function LoadProgram(disc, settings) {
  const program = await OrvantaShell({ noInitialRun: true, ...settings });
  await disc.layOut(program.FS);
  return program;
}

async function OpenDisc() {
  const index = globalThis.orvantaDisc ?? (await (await fetch('disc.json')).json());
  const settings = globalThis.orvantaProgram ? { wasmBinary: globalThis.orvantaProgram() } : {};
  const disc = new Disc(index);
  document.title = disc.title;
  document.getElementById('title').textContent = disc.title;
  startButton.textContent = kText.start;
  // Fetched while the reader finds the button.
  let program = LoadProgram(disc, settings);
  startButton.addEventListener('click', async () => {
    overlay.hidden = true;
    const page = new Page(disc, () => { overlay.hidden = false; });
    globalThis.orvantaPage = page;
    try {
      const ready = await program;
      ready.page = page;
      program = LoadProgram(disc, settings);
      ready.callMain([]);
    } catch (error) {
      page.end();
      ShowFailure(error);
    }
  });
  startButton.disabled = false;
}

function ShowFailure(error) {
  document.getElementById('failure').textContent = kText.failed;
  console.error(error);
}

document.documentElement.lang = kText === kTexts.pl ? 'pl' : 'en';
OpenDisc().catch(ShowFailure);

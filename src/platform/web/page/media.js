// Players of sound and film. Sounds are decoded whole and play from memory, so that a loop has no gap.

'use strict';

/** The program's numbers for what a player is doing. */
const PlayerState = { noFile: -1, stopped: 0, paused: 1, running: 2 };

/** What sounds and films have in common. Positions and lengths are in seconds. */
class Player {
  state = PlayerState.noFile;
  loaded = false;
  loading = null;
  playCount = 1;
  factor = 1;

  constructor(media) { this.media = media; }

  /** Loads a file in place of what was loaded and plays it from its beginning. */
  load(path) {
    const before = this.state;
    this.unload();
    this.loaded = false;
    this.state = PlayerState.running;
    const loading = this.open(path).then((opened) => {
      if (this.loading !== loading) return;
      this.loading = null;
      this.loaded = opened;
      if (!opened) {
        this.state = before === PlayerState.noFile ? PlayerState.noFile : PlayerState.stopped;
      } else if (this.state === PlayerState.running) {
        this.start();
      }
      this.media.onChange();
    });
    this.loading = loading;
  }

  /** Resolves when it is known whether the file can be played, after `milliseconds` at the longest. */
  settled(milliseconds) {
    return Promise.race([this.loading, new Promise((done) => setTimeout(done, milliseconds))]);
  }

  run() {
    if (this.loading) {
      this.state = PlayerState.running;
    } else if (this.loaded && this.state !== PlayerState.running) {
      this.state = PlayerState.running;
      this.start();
    }
  }

  pause() {
    if (!this.loading && !this.loaded) return;
    if (this.state === PlayerState.running && this.loaded) this.hold();
    this.state = PlayerState.paused;
  }

  stop() {
    if (this.state === PlayerState.noFile) return;
    if (this.loaded) {
      this.hold();
      this.seek(0);
    }
    this.state = PlayerState.stopped;
  }

  filmSize() { return { width: 0, height: 0 }; }
  picture() { return 0; }
  takeFrame() { return false; }
}

class SoundPlayer extends Player {
  #buffer = null;
  #source = null;
  #from = 0;     // played up to the last start
  #startedAt = 0;  // by the audio clock

  constructor(media) {
    super(media);
    this.gain = media.context.createGain();
    this.gain.connect(media.context.destination);
  }

  async open(path) {
    const bytes = await this.media.disc.bytes(path, true);
    try {
      this.#buffer = await this.media.context.decodeAudioData(bytes);
    } catch {
      return false;
    }
    this.#from = 0;
    return true;
  }

  start() {
    const { context } = this.media;
    const end = this.#buffer.duration * this.playCount;
    if (this.#from >= end) this.#from = 0;
    const source = context.createBufferSource();
    source.buffer = this.#buffer;
    source.loop = true;
    source.connect(this.gain);
    source.onended = () => {
      if (this.#source !== source) return;
      this.#source = null;
      this.#from = end;
      this.state = PlayerState.stopped;
      this.media.onChange();
    };
    this.#startedAt = context.currentTime;
    source.start(0, this.#from % this.#buffer.duration);
    source.stop(this.#startedAt + end - this.#from);
    this.#source = source;
  }

  hold() {
    this.#from = this.#played();
    const source = this.#source;
    this.#source = null;
    source?.stop();
  }

  seek(seconds) {
    if (!this.loaded) return;
    const running = this.#source !== null;
    if (running) this.hold();
    this.#from = Math.min(seconds, this.#buffer.duration);
    if (running) this.start();
  }

  #played() { return this.#from + (this.#source ? this.media.context.currentTime - this.#startedAt : 0); }

  position() {
    const length = this.length();
    const played = this.#played();
    return length > 0 && played < length * this.playCount ? played % length : length;
  }

  length() { return this.loaded ? this.#buffer.duration : 0; }

  setVolume(factor) { this.gain.gain.value = factor; }

  unload() {
    if (this.#source) this.hold();
    this.#buffer = null;
    this.#from = 0;
  }

  close() {
    this.unload();
    this.gain.disconnect();
  }
}

class FilmPlayer extends Player {
  #video = null;
  #picture = 0;
  #fresh = false;
  #plays = 0;

  open(path) {
    const video = document.createElement('video');
    video.playsInline = true;
    video.preload = 'auto';
    video.volume = this.factor;
    this.#video = video;
    this.#plays = 0;
    video.addEventListener('ended', () => {
      if (video === this.#video) this.#ended();
    });
    const watch = () => {
      if (video !== this.#video) return;
      this.#fresh = true;
      this.media.onChange();
      video.requestVideoFrameCallback(watch);
    };
    video.requestVideoFrameCallback(watch);
    return new Promise((done) => {
      video.addEventListener('loadeddata', () => {
        this.#picture = this.media.pictures.add(video);
        this.#fresh = true;
        done(true);
      });
      video.addEventListener('error', () => done(false));
      video.src = this.media.disc.entry(path) ? this.media.disc.address(path, true) : '';
    });
  }

  #ended() {
    if (++this.#plays < this.playCount) return this.start();
    this.state = PlayerState.stopped;
    this.media.onChange();
  }

  start() {
    if (this.#video.ended) this.#video.currentTime = 0;
    this.#video.play().catch(() => {});
  }

  hold() { this.#video.pause(); }

  seek(seconds) { if (this.loaded) this.#video.currentTime = seconds; }

  position() { return this.#video?.currentTime ?? 0; }

  length() { return this.loaded && Number.isFinite(this.#video.duration) ? this.#video.duration : 0; }

  setVolume(factor) {
    this.factor = factor;
    if (this.#video) this.#video.volume = factor;
  }

  filmSize() { return { width: this.#video?.videoWidth ?? 0, height: this.#video?.videoHeight ?? 0 }; }

  picture() { return this.#picture; }

  takeFrame() {
    const fresh = this.#fresh && this.#picture !== 0;
    if (fresh) this.#fresh = false;
    return fresh;
  }

  unload() {
    const video = this.#video;
    this.#video = null;
    this.#picture = 0;
    if (!video) return;
    video.pause();
    video.removeAttribute('src');
    video.load();
  }

  close() { this.unload(); }
}

class Media {
  #players = new Map();
  #last = 0;

  /** `onChange` is called when a player has something that the program has not seen. */
  constructor(disc, pictures, onChange) {
    this.disc = disc;
    this.pictures = pictures;
    this.onChange = onChange;
    this.context = new AudioContext();
  }

  hasSound() { return this.context.state !== 'closed'; }

  open(film) {
    this.#players.set(++this.#last, film ? new FilmPlayer(this) : new SoundPlayer(this));
    return this.#last;
  }

  player(number) { return this.#players.get(number); }

  close(number) {
    this.player(number).close();
    this.#players.delete(number);
  }

  closeAll() {
    for (const number of [...this.#players.keys()]) this.close(number);
    this.context.close();
  }
}

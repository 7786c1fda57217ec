// The functions of Browser.h for the linker: each hands its call to the page, which is `Module.page`.
// The linker wants plain functions here. Those that wait stand in ASYNCIFY_IMPORTS in CMakeLists.txt.

const orvantaFunctions = {
  BrowserNow: function() {
    return performance.now();
  },
  BrowserWait: function(milliseconds) {
    return Asyncify.handleAsync(() => Module.page.input.wait(milliseconds));
  },
  BrowserSleep: function(milliseconds) {
    return Asyncify.handleAsync(() => new Promise((done) => setTimeout(done, milliseconds)));
  },
  BrowserEnd: function() {
    Module.page.end();
  },

  BrowserScreenSize: function(size) {
    HEAP32[size >> 2] = Module.page.desk.width;
    HEAP32[(size >> 2) + 1] = Module.page.desk.height;
  },
  BrowserNextInput: function(kind, x, y, detail) {
    const event = Module.page.input.next();
    if (!event) return 0;
    HEAP32[kind >> 2] = event.kind;
    HEAP32[x >> 2] = event.x;
    HEAP32[y >> 2] = event.y;
    HEAP32[detail >> 2] = event.detail;
    return 1;
  },

  BrowserOpenWindow: function(wholeScreen) {
    return Module.page.desk.open(wholeScreen !== 0);
  },
  BrowserCloseWindow: function(window) {
    return Module.page.desk.close(window);
  },
  BrowserPlaceWindow: function(window, left, top, width, height) {
    return Module.page.desk.window(window).place(left, top, width, height);
  },
  BrowserShapeWindow: function(window, rectangles, count) {
    return Module.page.desk.window(window).shape(HEAP32.slice(rectangles >> 2, (rectangles >> 2) + 4 * count));
  },
  BrowserNameWindow: function(window, caption) {
    return Module.page.desk.window(window).name(UTF8ToString(caption));
  },
  BrowserShowWindow: function(window, shown) {
    return Module.page.desk.window(window).show(shown !== 0);
  },
  BrowserMinimiseWindow: function(window, minimised) {
    return Module.page.desk.window(window).minimise(minimised !== 0);
  },
  BrowserStackWindows: function(windows, count) {
    return Module.page.desk.stack(Array.from(HEAP32.subarray(windows >> 2, (windows >> 2) + count)));
  },
  BrowserSetPointer: function(window, pointer) {
    return Module.page.desk.window(window).pointer(pointer);
  },

  BrowserBeginPaint: function(window, left, top, width, height) {
    return Module.page.painter.begin(window, left, top, width, height);
  },
  BrowserEndPaint: function() {
    return Module.page.painter.end();
  },
  BrowserPushClip: function(left, top, width, height) {
    return Module.page.painter.pushClip(left, top, width, height);
  },
  BrowserPopClip: function() {
    return Module.page.painter.popClip();
  },
  BrowserFill: function(left, top, width, height, red, green, blue) {
    return Module.page.painter.fill(left, top, width, height, `rgb(${red},${green},${blue})`);
  },
  BrowserDraw: function(picture, left, top, width, height) {
    return Module.page.painter.draw(picture, left, top, width, height);
  },
  BrowserText: function(text, left, top, width, families, bold, size, red, green, blue, right) {
    return Module.page.painter.text(UTF8ToString(text), { left, top, width }, UTF8ToString(families), bold !== 0, size,
                             `rgb(${red},${green},${blue})`, right !== 0);
  },

  BrowserLoadPicture: function(path, size) {
    return Asyncify.handleAsync(async () => {
    const loaded = await Module.page.pictures.load(UTF8ToString(path));
    HEAP32[size >> 2] = loaded.width;
    HEAP32[(size >> 2) + 1] = loaded.height;
    return loaded.number;
  });
  },
  BrowserDropPicture: function(picture) {
    return Module.page.pictures.drop(picture);
  },
  BrowserAddFont: function(path) {
    return Asyncify.handleAsync(() => Module.page.fonts.add(UTF8ToString(path)));
  },
  BrowserRemoveFont: function(path) {
    return Module.page.fonts.remove(UTF8ToString(path));
  },

  BrowserShowMessage: function(text, title, critical) {
    return Module.page.dialogs.showMessage(UTF8ToString(text), UTF8ToString(title), critical !== 0);
  },
  BrowserMessageOpen: function() {
    return Number(Module.page.dialogs.messageOpen);
  },
  BrowserStart: function(path, address) {
    return Module.page.dialogs.start(UTF8ToString(path), UTF8ToString(address));
  },

  BrowserHasSound: function() {
    return Number(Module.page.media.hasSound());
  },
  BrowserOpenPlayer: function(film) {
    return Module.page.media.open(film !== 0);
  },
  BrowserClosePlayer: function(player) {
    return Module.page.media.close(player);
  },
  BrowserLoadMedia: function(player, path) {
    return Module.page.media.player(player).load(UTF8ToString(path));
  },
  BrowserAwaitMedia: function(player, milliseconds) {
    return Asyncify.handleAsync(() => Module.page.media.player(player).settled(milliseconds));
  },
  BrowserMediaLoading: function(player) {
    return Number(Module.page.media.player(player).loading !== null);
  },
  BrowserRunPlayer: function(player) {
    return Module.page.media.player(player).run();
  },
  BrowserPausePlayer: function(player) {
    return Module.page.media.player(player).pause();
  },
  BrowserStopPlayer: function(player) {
    return Module.page.media.player(player).stop();
  },
  BrowserPlayerState: function(player) {
    return Module.page.media.player(player).state;
  },
  BrowserPlayerLoaded: function(player) {
    return Number(Module.page.media.player(player).loaded);
  },
  BrowserPlayerPosition: function(player) {
    return Module.page.media.player(player).position();
  },
  BrowserSetPlayerPosition: function(player, seconds) {
    return Module.page.media.player(player).seek(seconds);
  },
  BrowserPlayerLength: function(player) {
    return Module.page.media.player(player).length();
  },
  BrowserSetPlayerVolume: function(player, factor) {
    return Module.page.media.player(player).setVolume(factor);
  },
  BrowserSetPlayCount: function(player, count) { Module.page.media.player(player).playCount = count; },
  BrowserFilmSize: function(player, size) {
    const film = Module.page.media.player(player).filmSize();
    HEAP32[size >> 2] = film.width;
    HEAP32[(size >> 2) + 1] = film.height;
  },
  BrowserFilmPicture: function(player) {
    return Module.page.media.player(player).picture();
  },
  BrowserFrameChanged: function(player) {
    return Number(Module.page.media.player(player).takeFrame());
  },
};

mergeInto(LibraryManager.library, orvantaFunctions);

#pragma once

#include <cstdint>

/// What the page does for the program; `browser.js` implements it. Places are pixels of the program, texts
/// are UTF-8, paths are those of the disc's drive as `WebHost` lays it out. Functions that wait suspend the
/// program and leave the page alive.
extern "C" {

/// Milliseconds of a clock that never goes back.
double BrowserNow();
/// Waits for input, for `milliseconds` at the longest; without limit if that is negative.
void BrowserWait(double milliseconds);
/// Waits for so long, whatever the user does.
void BrowserSleep(double milliseconds);
/// Takes the page down to its first screen.
void BrowserEnd();

/// Two numbers: width and height of the page's screen.
void BrowserScreenSize(std::int32_t* size);
/// Takes the oldest input out of the queue; false if there is none.
bool BrowserNextInput(std::int32_t* kind, std::int32_t* x, std::int32_t* y, std::int32_t* detail);

int BrowserOpenWindow(bool wholeScreen);
void BrowserCloseWindow(int window);
void BrowserPlaceWindow(int window, int left, int top, int width, int height);
/// `rectangles` has four numbers for each: left, top, width, height.
void BrowserShapeWindow(int window, const std::int32_t* rectangles, int count);
void BrowserNameWindow(int window, const char* caption);
void BrowserShowWindow(int window, bool shown);
/// A minimised window leaves an icon that restores it.
void BrowserMinimiseWindow(int window, bool minimised);
/// From the bottom to the top.
void BrowserStackWindows(const std::int32_t* windows, int count);
/// `pointer` counts as `Pointer` does.
void BrowserSetPointer(int window, int pointer);

void BrowserBeginPaint(int window, int left, int top, int width, int height);
void BrowserEndPaint();
void BrowserPushClip(int left, int top, int width, int height);
void BrowserPopClip();
void BrowserFill(int left, int top, int width, int height, int red, int green, int blue);
void BrowserDraw(int picture, int left, int top, int width, int height);
/// `families` are separated by line breaks; `size` is in pixels.
void BrowserText(const char* text, int left, int top, int width, const char* families, bool bold, int size,
                 int red, int green, int blue, bool right);

/// Waits until the picture is there. 0 if it cannot be read. `size` takes width and height.
int BrowserLoadPicture(const char* path, std::int32_t* size);
void BrowserDropPicture(int picture);
/// Waits until the font is there.
void BrowserAddFont(const char* path);
void BrowserRemoveFont(const char* path);

/// Opens a box that the user closes; `BrowserMessageOpen` says whether he has.
void BrowserShowMessage(const char* text, const char* title, bool critical);
bool BrowserMessageOpen();
/// Opens a document or an address in a new tab, or offers a program as a download. 33, or why it fails as
/// `Host::StartFile` says it.
int BrowserStart(const char* path, const char* address);

bool BrowserHasSound();
int BrowserOpenPlayer(bool film);
void BrowserClosePlayer(int player);
void BrowserLoadMedia(int player, const char* path);
/// It is not yet known whether the file can be played.
bool BrowserMediaLoading(int player);
/// Waits until it is known, for `milliseconds` at the longest.
void BrowserAwaitMedia(int player, double milliseconds);
void BrowserRunPlayer(int player);
void BrowserPausePlayer(int player);
void BrowserStopPlayer(int player);
/// -1 to 2, as `MovieState` counts.
int BrowserPlayerState(int player);
bool BrowserPlayerLoaded(int player);
double BrowserPlayerPosition(int player);
void BrowserSetPlayerPosition(int player, double seconds);
double BrowserPlayerLength(int player);
/// 0 to 1 of the amplitude.
void BrowserSetPlayerVolume(int player, double factor);
void BrowserSetPlayCount(int player, int count);
/// Two numbers: width and height of the film, 0 for sound.
void BrowserFilmSize(int player, std::int32_t* size);
/// The picture that shows the film's present frame; 0 while there is none.
int BrowserFilmPicture(int player);
/// Whether the film has a new frame since the last question.
bool BrowserFrameChanged(int player);
}

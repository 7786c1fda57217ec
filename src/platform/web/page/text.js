// How text breaks into lines, as the desktop's does.

'use strict';

/** A CSS font. `families` are separated by line breaks. */
function FontOf(families, bold, size) {
  const names = families.split('\n').filter(Boolean).map((name) => `"${name.replace(/["\\]/g, '')}"`);
  // Whoever has no Liberation has fonts of the same widths under these names.
  const wide = families.includes('Serif') ? 'Times New Roman' : families.includes('Mono') ? 'Courier New' : 'Arial';
  return `${bold ? 'bold ' : ''}${size}px ${names.join(', ')}, "${wide}", sans-serif`;
}

/** The parts of a paragraph between which a line may break: after blanks, hyphens and slashes before a letter. */
function Unbroken(paragraph) {
  return paragraph.match(/[^\s\-/\u2013\u2014]*(?:[\-/\u2013\u2014](?![\p{L}])|[\-/\u2013\u2014]|\s+|$)/gu)?.filter(Boolean) ?? [];
}

/**
 * The lines of a text at a width in pixels. A word that is wider stands on a line of its own, and blanks at a
 * line's end take no room.
 */
function WrappedLines(text, width, widthOf) {
  const lines = [];
  for (const paragraph of text.split(/\r\n|\r|\n/)) {
    let line = '';
    for (const part of Unbroken(paragraph)) {
      if (line !== '' && widthOf((line + part).trimEnd()) > width) {
        lines.push(line.trimEnd());
        line = '';
      }
      line += part;
    }
    lines.push(line.trimEnd());
  }
  return lines;
}

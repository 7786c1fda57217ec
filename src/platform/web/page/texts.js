// The page's own texts, in the reader's language. Those of the disc stay as they are.

'use strict';

const kTexts = {
  pl: {
    start: 'Uruchom płytę',
    close: 'OK',
    download: 'Pobierz',
    failed: 'Nie można uruchomić tej płyty w przeglądarce.',
    kinds: {
      dos: 'Program dla DOS-u',
      windows16: 'Program dla Windows (16 bitów)',
      windows32: 'Program dla Windows (32 bity)',
      windows64: 'Program dla Windows (64 bity)',
      windowsFile: 'Plik dla Windows',
      native: 'Program dla Linuksa',
      script: 'Skrypt',
      document: 'Dokument',
    },
  },
  en: {
    start: 'Start the disc',
    close: 'OK',
    download: 'Download',
    failed: 'This disc cannot be started in the browser.',
    kinds: {
      dos: 'DOS program',
      windows16: 'Windows program (16 bits)',
      windows32: 'Windows program (32 bits)',
      windows64: 'Windows program (64 bits)',
      windowsFile: 'Windows file',
      native: 'Linux program',
      script: 'Script',
      document: 'Document',
    },
  },
};

const kText = navigator.language.startsWith('pl') ? kTexts.pl : kTexts.en;

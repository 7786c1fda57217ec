// The search of all discs of the library. Without this script the covers still lead to every disc.
"use strict";
(() => {
  // Removes the marks of letters, so that "zolw" finds "żółw".
  const plain = (text) => text.toLowerCase().replace(/ł/g, "l").normalize("NFD").replace(/[\u0300-\u036f]/g, "");
  const mostShown = 200;
  const texts = entries.map(([, , title, kind, text]) => plain(`${title} ${kind} ${text}`));
  const titles = new Map(entries.filter(([, , , kind]) => kind === "płyta").map(([folder, , title]) => [folder, title]));
  const form = document.getElementById("search");
  const words = document.getElementById("words");
  const found = document.getElementById("found");
  const hits = document.getElementById("hits");
  const discs = document.getElementById("plyty");

  const line = ([folder, id, title, kind]) => {
    const item = document.createElement("li");
    const link = item.appendChild(document.createElement("a"));
    link.href = `${folder}/index.html#${id}`;
    link.textContent = title;
    item.appendChild(document.createElement("small")).textContent = ` ${kind} · ${titles.get(folder) ?? folder}`;
    return item;
  };

  const search = () => {
    const wanted = plain(words.value).split(/\s+/).filter(Boolean);
    const searching = wanted.length > 0;
    const matches = searching ? entries.filter((_, i) => wanted.every((word) => texts[i].includes(word))) : [];
    hits.replaceChildren(...matches.slice(0, mostShown).map(line));
    hits.hidden = !searching;
    discs.hidden = searching;
    const more = matches.length > mostShown ? `, pokazano ${mostShown}` : "";
    found.value = searching ? `znaleziono: ${matches.length}${more}` : "";
  };

  form.hidden = false;
  form.addEventListener("submit", (event) => event.preventDefault());
  words.addEventListener("input", search);
  search();
})();

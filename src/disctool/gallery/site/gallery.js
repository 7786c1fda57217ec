// The search of the page. Without this script everything is shown.
"use strict";
(() => {
  // Removes the marks of letters, so that "zolw" finds "żółw".
  const plain = (text) => text.toLowerCase().replace(/ł/g, "l").normalize("NFD").replace(/[\u0300-\u036f]/g, "");
  const sections = [...document.querySelectorAll("main > section")];
  const texts = sections.map((section) => plain(section.textContent));
  const form = document.getElementById("search");
  const words = document.getElementById("words");
  const found = document.getElementById("found");

  const search = () => {
    const wanted = plain(words.value).split(/\s+/).filter(Boolean);
    let count = 0;
    sections.forEach((section, i) => {
      section.hidden = !wanted.every((word) => texts[i].includes(word));
      if (!section.hidden) ++count;
    });
    found.value = wanted.length === 0 ? "" : `znaleziono: ${count}`;
  };

  form.hidden = false;
  form.addEventListener("submit", (event) => event.preventDefault());
  words.addEventListener("input", search);
  // A link must work even if the search has hidden its target.
  window.addEventListener("hashchange", () => {
    const goal = document.getElementById(location.hash.slice(1));
    if (!goal || !goal.hidden) return;
    words.value = "";
    search();
    goal.scrollIntoView();
  });
})();

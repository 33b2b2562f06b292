// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/htmlparts.h>

const char HtmlParts::style[] = R"css(
:root { color-scheme: light dark; --paper: #fff; --ink: #1d2733; --line: #c9d1d9; --bar: #f4f6f8; }
* { box-sizing: border-box; }
html, body { margin: 0; height: 100%; }
body { display: flex; flex-direction: column; font: 15px/1.45 "Noto Sans", "Noto Sans CJK SC", "DejaVu Sans", sans-serif;
  background: var(--paper); color: var(--ink); }
header { display: flex; flex-wrap: wrap; gap: .5em; align-items: center; padding: .5em .8em; background: var(--bar);
  border-bottom: 1px solid var(--line); }
h1 { font-size: 1.1em; margin: 0; margin-inline-end: auto; }
h1, h2, p { unicode-bidi: plaintext; }
button, input { font: inherit; color: inherit; background: var(--paper); border: 1px solid var(--line); border-radius: 5px;
  padding: .25em .7em; }
main { flex: 1; position: relative; overflow: hidden; min-height: 0; }
svg { width: 100%; height: 100%; display: block; direction: ltr; touch-action: none; cursor: grab; }
svg g[role] { cursor: pointer; outline: none; }
svg g[role]:focus-visible text, svg g.current text { text-decoration: underline; }
svg g.hit text { paint-order: stroke; stroke: #ffd54a; stroke-width: 6px; stroke-linejoin: round; fill: #1d2733; }
svg.seeking g[role]:not(.hit) { opacity: .35; }
svg g.hidden { display: none; }
svg .count { font-size: 11px; font-weight: bold; }
aside { position: absolute; inset-inline-end: .8em; top: .8em; width: min(24em, 90%); max-height: calc(100% - 1.6em); overflow: auto;
  background: var(--paper); border: 1px solid var(--line); border-radius: 8px; padding: 1em; box-shadow: 0 4px 16px #0003; }
aside[hidden] { display: none; }
aside h2 { font-size: 1.05em; margin: 0 0 .4em; margin-inline-end: 2em; white-space: pre-line; }
aside p { margin: .3em 0; white-space: pre-line; overflow-wrap: anywhere; }
aside .close { position: absolute; inset-inline-end: .6em; top: .6em; }
.muted { opacity: .75; }
@media (prefers-color-scheme: dark) {
  :root { --paper: #1e2126; --ink: #e8edf2; --line: #424a55; --bar: #282c33; }
}
@media print { header, aside { display: none; } }
)css";

const char HtmlParts::script[] = R"js(
"use strict";
(() => {
  const $ = (id) => document.getElementById(id);
  const svg = document.querySelector("main > svg");
  const data = JSON.parse($("data").textContent);
  const nodes = [...svg.querySelectorAll("g[role=treeitem]")];
  const parent = nodes.map((g) => (g.dataset.p === undefined ? -1 : Number(g.dataset.p)));
  const children = nodes.map(() => []);
  const below = nodes.map(() => 0);
  for (let i = nodes.length - 1; i > 0; --i) {
    children[parent[i]].unshift(i);
    below[parent[i]] += below[i] + 1;
  }
  const folded = nodes.map(() => false);
  const visible = (i) => !nodes[i].classList.contains("hidden");
  let current = 0;

  function showFolds() {
    nodes.forEach((g, i) => {
      const p = parent[i];
      g.classList.toggle("hidden", p >= 0 && (folded[p] || !visible(p)));
      if (children[i].length) g.setAttribute("aria-expanded", String(!folded[i]));
      let count = g.querySelector(".count");
      if (folded[i] && !count) {
        const last = [...g.querySelectorAll("text")].pop();
        count = document.createElementNS("http://www.w3.org/2000/svg", "text");
        count.setAttribute("class", "count");
        if (last) {
          const box = last.getBBox();
          count.setAttribute("x", box.x + box.width + 4);
          count.setAttribute("y", last.getAttribute("y"));
          count.setAttribute("fill", last.getAttribute("fill"));
          count.classList.add(...last.classList);
        }
        count.textContent = "+" + below[i];
        g.append(count);
      } else if (!folded[i] && count) count.remove();
    });
  }
  function fold(i, on) {
    if (!children[i].length) return;
    folded[i] = on;
    showFolds();
  }
  function foldAll(on) {
    nodes.forEach((g, i) => { folded[i] = on && i > 0 && children[i].length > 0; });
    showFolds();
  }
  function reveal(i) {
    for (let p = parent[i]; p >= 0; p = parent[p]) folded[p] = false;
  }

  function focus(i) {
    nodes[current].setAttribute("tabindex", "-1");
    nodes[current].classList.remove("current");
    current = i;
    nodes[i].setAttribute("tabindex", "0");
    nodes[i].classList.add("current");
    nodes[i].focus({ preventScroll: true });
    keepInView(nodes[i]);
  }
  function details(i) {
    const about = data[i] || {};
    const path = [];
    for (let p = parent[i]; p >= 0; p = parent[p]) path.unshift(nodes[p].dataset.title);
    $("path").textContent = path.join(" › ");
    $("title").textContent = nodes[i].dataset.title;
    $("state").textContent = about.state || "";
    $("detail").textContent = about.detail || "";
    const link = $("link");
    link.hidden = !about.link;
    link.textContent = about.link || "";
    if (about.link) link.setAttribute("href", about.link);
    else link.removeAttribute("href");
    $("details").hidden = false;
  }

  const whole = svg.viewBox.baseVal;
  const all = { x: whole.x, y: whole.y, w: whole.width, h: whole.height };
  let view = { ...all };
  function show() { svg.setAttribute("viewBox", `${view.x} ${view.y} ${view.w} ${view.h}`); }
  function zoom(by, x = view.x + view.w / 2, y = view.y + view.h / 2) {
    const w = Math.min(Math.max(view.w / by, all.w / 60), all.w * 3);
    const k = w / view.w;
    view = { x: x - (x - view.x) * k, y: y - (y - view.y) * k, w, h: view.h * k };
    show();
  }
  function at(event) {
    return new DOMPoint(event.clientX, event.clientY).matrixTransform(svg.getScreenCTM().inverse());
  }
  function keepInView(g) {
    const box = g.getBBox();
    if (box.x < view.x || box.x + box.width > view.x + view.w) view.x = box.x + box.width / 2 - view.w / 2;
    if (box.y < view.y || box.y + box.height > view.y + view.h) view.y = box.y + box.height / 2 - view.h / 2;
    show();
  }
  svg.addEventListener("wheel", (event) => {
    event.preventDefault();
    const p = at(event);
    zoom(Math.exp(-event.deltaY / 400), p.x, p.y);
  }, { passive: false });
  let drag = null;
  svg.addEventListener("pointerdown", (event) => { drag = { p: at(event), moved: false }; });
  svg.addEventListener("pointermove", (event) => {
    if (!drag || !event.buttons) return;
    const p = at(event);
    if (Math.hypot(p.x - drag.p.x, p.y - drag.p.y) * svg.getScreenCTM().a > 4) drag.moved = true;
    view.x -= p.x - drag.p.x;
    view.y -= p.y - drag.p.y;
    show();
  });
  svg.addEventListener("click", (event) => {
    const moved = drag && drag.moved;
    drag = null;
    const g = event.target.closest("g[role=treeitem]");
    if (moved || !g) return;
    const i = nodes.indexOf(g);
    if (event.target.classList.contains("count")) fold(i, false);
    else if (!event.target.closest("a")) { focus(i); details(i); }
  });
  svg.addEventListener("dblclick", (event) => {
    const g = event.target.closest("g[role=treeitem]");
    if (g) fold(nodes.indexOf(g), !folded[nodes.indexOf(g)]);
  });

  function search(words) {
    const wanted = words.trim().toLowerCase();
    let first = -1, count = 0;
    nodes.forEach((g, i) => {
      const about = data[i] || {};
      const hit = wanted !== "" && (g.dataset.title + "\n" + (about.detail || "")).toLowerCase().includes(wanted);
      g.classList.toggle("hit", hit);
      if (!hit) return;
      reveal(i);
      ++count;
      if (first < 0) first = i;
    });
    svg.classList.toggle("seeking", wanted !== "");
    $("found").textContent = wanted ? String(count) : "";
    showFolds();
    if (first >= 0) keepInView(nodes[first]);
    return first;
  }
  $("search").addEventListener("input", (event) => search(event.target.value));
  $("search").addEventListener("keydown", (event) => {
    if (event.key === "Enter") { const i = search(event.target.value); if (i >= 0) { focus(i); details(i); } }
    if (event.key === "Escape") { event.target.value = ""; search(""); }
  });

  document.addEventListener("keydown", (event) => {
    if (event.target.tagName === "INPUT" || event.ctrlKey || event.metaKey || event.altKey) return;
    const step = (by) => {
      for (let i = current + by; i >= 0 && i < nodes.length; i += by) if (visible(i)) return focus(i);
    };
    const keys = {
      ArrowDown: () => step(1),
      ArrowUp: () => step(-1),
      ArrowRight: () => (folded[current] ? fold(current, false) : children[current].length && focus(children[current][0])),
      ArrowLeft: () => (children[current].length && !folded[current] && current ? fold(current, true)
        : parent[current] >= 0 && focus(parent[current])),
      Home: () => focus(0),
      Enter: () => details(current),
      " ": () => fold(current, !folded[current]),
      Escape: () => { $("details").hidden = true; },
      "+": () => zoom(1.25),
      "-": () => zoom(0.8),
      "0": () => { view = { ...all }; show(); },
      "/": () => $("search").focus(),
    };
    if (!keys[event.key] || event.target.tagName === "BUTTON" || event.target.tagName === "A") return;
    event.preventDefault();
    keys[event.key]();
  });
  $("in").addEventListener("click", () => zoom(1.25));
  $("out").addEventListener("click", () => zoom(0.8));
  $("fit").addEventListener("click", () => { view = { ...all }; show(); });
  $("expand").addEventListener("click", () => foldAll(false));
  $("fold").addEventListener("click", () => foldAll(true));
  $("close").addEventListener("click", () => { $("details").hidden = true; nodes[current].focus(); });

  showFolds();
  const wish = new URLSearchParams(location.hash.slice(1));
  if (wish.get("fold")) foldAll(true);
  if (wish.get("q")) { $("search").value = wish.get("q"); search(wish.get("q")); }
  if (wish.get("show") && nodes[Number(wish.get("show"))]) details(Number(wish.get("show")));
  document.documentElement.dataset.ready = "yes";
})();
)js";

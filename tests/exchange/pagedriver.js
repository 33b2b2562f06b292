// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// Uses a page as a reader does, and appends to it what then is there to be seen.
(() => {
  const out = [];
  const $ = (id) => document.getElementById(id);
  const svg = document.querySelector("main > svg");
  const nodes = [...svg.querySelectorAll("g[role=treeitem]")];
  const say = (what, value) => out.push(what + ": " + value);
  const focused = () => nodes.indexOf(document.activeElement);
  const width = () => svg.viewBox.baseVal.width;
  const middle = (element) => {
    const box = element.getBoundingClientRect();
    return { clientX: box.x + box.width / 2, clientY: box.y + box.height / 2 };
  };
  const send = (target, type, at, more = {}) => target.dispatchEvent(
    new (type.startsWith("pointer") ? PointerEvent : type === "wheel" ? WheelEvent : MouseEvent)(
      type, { bubbles: true, cancelable: true, ...at, ...more }));
  const hit = (at) => document.elementFromPoint(at.clientX, at.clientY);
  const click = (element) => {
    const at = middle(element);
    for (const type of ["pointerdown", "pointerup", "click"]) send(hit(at), type, at);
  };
  const press = (key) => document.activeElement.dispatchEvent(
    new KeyboardEvent("keydown", { key, bubbles: true, cancelable: true }));
  const text = (i) => nodes[i].querySelector("text");
  const shown = () => ($("details").hidden ? "nothing" : $("title").textContent);

  say("shown at first", shown());
  click(text(6));
  say("a click shows", shown());
  say("its path", $("path").textContent);
  say("a click focuses", focused());
  say("focusable", nodes.filter((g) => g.tabIndex === 0).length);
  press("Escape");
  say("Escape leaves", shown());
  for (const key of ["ArrowDown", "ArrowUp", "ArrowLeft", "ArrowRight", "Home"]) {
    press(key);
    say(key, focused());
  }
  press("Enter");
  say("Enter shows", shown());
  $("close").click();
  say("closed", shown());

  click(text(1));
  $("close").click();
  const fold = () => nodes[1].getAttribute("aria-expanded") + " " +
    nodes.filter((g) => g.getBoundingClientRect().width > 0).length + " of " + nodes.length;
  say("unfolded", fold());
  press(" ");
  say("space", fold());
  say("level", nodes[1].getAttribute("aria-level"));
  press("ArrowDown");
  say("past what is folded", focused());
  press("ArrowUp");
  press("ArrowRight");
  say("ArrowRight", fold());
  send(text(1), "dblclick", middle(text(1)));
  say("double click", fold());
  click(nodes[1].querySelector(".count"));
  say("click on the number", fold());
  say("a leaf", nodes[2].getAttribute("aria-expanded"));
  $("fold").click();
  say("fold", fold());
  $("expand").click();
  say("expand", fold());

  const all = width();
  const zoomed = (what) => say(what, (all / width()).toFixed(2));
  press("+");
  zoomed("plus");
  $("in").click();
  zoomed("in");
  $("out").click();
  press("-");
  zoomed("out again");
  press("+");
  press("0");
  zoomed("zero");
  const at = middle(text(6));
  send(svg, "wheel", at, { deltaY: -400 });
  zoomed("wheel");
  const moved = middle(text(6));
  say("keeps its place", Math.hypot(moved.clientX - at.clientX, moved.clientY - at.clientY) < 1);
  send(svg, "pointerdown", at);
  send(svg, "pointermove", { clientX: at.clientX + 50, clientY: at.clientY + 30 }, { buttons: 1 });
  const dragged = middle(text(6));
  say("drag", Math.round(dragged.clientX - at.clientX) + " " + Math.round(dragged.clientY - at.clientY));
  send(text(6), "click", dragged);
  say("shown after a drag", shown());
  $("fit").click();
  zoomed("fit");

  const search = $("search");
  search.focus();
  search.value = "subject 7";
  search.dispatchEvent(new Event("input", { bubbles: true }));
  say("found", $("found").textContent);
  press("Enter");
  say("search shows", shown());
  say("and focuses", focused());
  say("dark", matchMedia("(prefers-color-scheme: dark)").matches);
  say("paper", getComputedStyle(document.body).backgroundColor);
  say("ink", getComputedStyle(text(6)).fill);
  const result = document.createElement("pre");
  result.id = "result";
  result.textContent = out.join("\n");
  document.body.append(result);
})();

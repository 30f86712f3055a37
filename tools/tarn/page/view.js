'use strict';
// The page of tarn view. From the pieces of each frame it makes one tree of members, which two files share, and beside
// it the bytes of each file. Rows and lines are made when they come into sight.

const data = JSON.parse(document.getElementById('data').textContent);
const sides = data.sides, two = sides.length === 2;
const element = id => document.getElementById(id);
const structural = new Set(['variant', 'flag', 'jump', 'fill', 'zero', 'state', 'marker', 'skipped']);
const isState = name => name === '@state';

// ---- the tree

let count = 0;
function makeNode(name, path, parent) {
  const node = {id: count++, name, path, parent, children: [], byName: new Map(), pieces: [null, null],
    present: [false, false], type: '', meaning: '', open: false, row: null, below: null, structural: false, differs: false, inside: 0};
  if (parent) { parent.children.push(node); parent.byName.set(name, node); }
  return node;
}

// "payload.list[0].id" has the steps payload, list, [0], id.
const steps = path => path.match(/\[[^\]]*\]|[^.[]+/g) || [];

function describe(node) {
  const owner = node.parent;
  if (!owner || node.type) return;
  if (node.name[0] === '[') { node.type = owner.type.replace('[]', ''); return; }
  const member = (data.records[owner.type] || {})[node.name];
  if (member) [node.type, node.meaning] = member;
}

// What stands between members has a name of its own kind, since a member may be called "state", too.
function nodeAt(root, path, kind, record) {
  let node = root;
  const names = steps(path);
  if (['variant', 'flag', 'jump', 'state'].includes(kind)) names.push('@' + names.pop());
  for (const name of names) {
    const there = node.byName.get(name);
    if (there) { node = there; continue; }
    node = makeNode(name, node === root ? name : node.path + (name[0] === '[' ? name : '.' + name), node);
    if (node.path === 'payload') node.type = record;
    describe(node);
  }
  return node;
}

const roots = [];
sides.forEach((side, s) => {
  side.pieces = [];
  side.data = new Uint8Array(side.bytes.length / 2);
  for (let i = 0; i < side.data.length; ++i) side.data[i] = parseInt(side.bytes.substr(2 * i, 2), 16);
  side.owner = new Int32Array(side.data.length).fill(-1);
  let at = 0;
  side.frames.forEach((frame, f) => {
    const root = roots[f] || (roots[f] = makeNode('frame ' + f, '', null));
    root.present[s] = true;
    root.label = root.label && frame.name && root.label !== frame.name ? root.label + ' / ' + frame.name
      : frame.name || root.label || 'ui_req_msg';
    let from = at;
    for (const [size, path, kind, value] of frame.pieces) {
      const node = nodeAt(root, path, kind, frame.record);
      const piece = {side: s, from, size, kind, value, node};
      side.pieces.push(piece);
      side.owner.fill(side.pieces.length - 1, from, from + size);
      node.pieces[s] = piece;
      node.structural = structural.has(kind);
      if (!node.type) node.type = kind;
      for (let n = node; n; n = n.parent) n.present[s] = true;
      from += size;
    }
    at += frame.size;
  });
  side.read = at;
});

// What stands between members says nothing that the members do not say, but for state.
function compare(node) {
  for (const child of node.children) compare(child);
  const [a, b] = node.pieces;
  if (a && b) node.differs = a.value !== b.value && (!node.structural || isState(node.name));
  else node.differs = node.present[0] !== node.present[1] && !node.structural;
  const within = node.children.reduce((sum, c) => sum + c.inside, 0);
  node.inside = node.present[0] !== node.present[1] ? (node.structural ? 0 : 1) : within + (node.differs ? 1 : 0);
}
if (two) roots.forEach(compare);

const isOfOneSide = node => Boolean(node) && node.present[0] !== node.present[1];
const isShown = node => (!node.structural || element('framing').checked) &&
  (!element('changes').checked || node.inside > 0 || isOfOneSide(node.parent));

// ---- rows

const tree = element('tree');
const rows = new Map();
const text = (parent, kind, words) => {
  const span = document.createElement('span');
  span.className = kind;
  span.textContent = words;
  parent.append(span);
};

function valueClass(piece) {
  if (piece.kind === 'var_string' || piece.kind === 'text') return 'value text';
  return piece.kind === 'luid' || /^[a-z]|^\d+ [A-Z]/.test(piece.value) ? 'value word' : 'value';
}

function fill(row, node) {
  text(row, 'fold', node.children.some(isShown) ? (node.open ? '\u25bc' : '\u25b6') : '');
  text(row, 'name', node.parent ? node.name : node.label);
  const [a, b] = node.pieces;
  if (two && a && b && a.value !== b.value && !node.structural) {
    text(row, 'value old', a.value);
    text(row, 'value new', b.value);
  } else if (a || b) {
    const piece = a || b;
    if (piece.value) text(row, valueClass(piece), piece.value);
  }
  const size = bytesOf(node, two && !node.present[0] ? 1 : 0).reduce((sum, r) => sum + r[1] - r[0], 0);
  if (node.children.some(c => !c.structural)) text(row, 'type', (node.type ? node.type + ', ' : '') + size + ' bytes');
  const state = node.byName.get('@state');
  if (state) {
    const values = state.pieces.filter(p => p).map(p => p.value);
    if (values.some(v => v !== '0')) text(row, 'badge', 'state ' + [...new Set(values)].join(' \u2192 '));
  }
}

function makeRow(node, depth) {
  const holder = document.createElement('div'), row = document.createElement('div');
  row.className = 'row';
  row.setAttribute('role', 'treeitem');
  row.dataset.id = node.id;
  row.dataset.path = node.path;
  row.style.paddingLeft = 8 + 18 * depth + 'px';
  if (!node.parent) row.classList.add('frame');
  if (node.structural) row.classList.add('framing');
  if (two) {
    if (node.present[0] !== node.present[1]) row.classList.add(node.present[0] ? 'a' : 'b');
    else if (node.differs) row.classList.add('changed');
    else if (node.inside) row.classList.add('inside');
  }
  if (hits.has(node)) row.classList.add('hit');
  if (node === held) row.classList.add('held');
  fill(row, node);
  holder.append(row);
  Object.assign(node, {row, holder, depth, below: null});
  rows.set(String(node.id), node);
  if (node.open) unfold(node);
  return holder;
}

function unfold(node) {
  node.open = true;
  if (!node.below) {
    node.below = document.createElement('div');
    node.below.setAttribute('role', 'group');
    for (const child of node.children) if (isShown(child)) node.below.append(makeRow(child, node.depth + 1));
    node.holder.append(node.below);
  }
  node.below.hidden = false;
  node.row.querySelector('.fold').textContent = node.below.children.length ? '\u25bc' : '';
}

function fold(node) {
  node.open = false;
  if (node.below) node.below.hidden = true;
  node.row.querySelector('.fold').textContent = node.children.some(isShown) ? '\u25b6' : '';
}

function drawTree() {
  rows.clear();
  tree.replaceChildren(...roots.filter(isShown).map(root => makeRow(root, 0)));
}

// Opens everything above, so that the row is there.
function reveal(node) {
  const above = [];
  for (let n = node.parent; n; n = n.parent) above.unshift(n);
  for (const n of above) if (n.row && !n.open) unfold(n);
  if (node.row) node.row.scrollIntoView({block: 'nearest'});
}

// ---- bytes

// The places of a member and of all below it, joined where they touch.
function bytesOf(node, s) {
  const places = [];
  const collect = n => {
    const piece = n.pieces[s];
    if (piece) places.push([piece.from, piece.from + piece.size]);
    n.children.forEach(collect);
  };
  collect(node);
  places.sort((x, y) => x[0] - y[0]);
  const joined = [];
  for (const place of places) {
    const last = joined[joined.length - 1];
    if (last && place[0] <= last[1]) last[1] = Math.max(last[1], place[1]);
    else joined.push(place);
  }
  return joined;
}

const contains = (places, at) => places.some(([from, to]) => from <= at && at < to);
const lineHeight = 20, perLine = 16;

function makeDump(side, s) {
  const [section, dump, spacer, lines] = [1, 2, 3, 4].map(() => document.createElement('div'));
  const title = document.createElement('h2');
  section.className = 'side';
  dump.className = 'dump';
  lines.className = 'lines';
  title.textContent = side.name + ', ' + side.data.length + ' bytes';
  spacer.style.height = Math.ceil(side.data.length / perLine) * lineHeight + 16 + 'px';
  dump.append(spacer, lines);
  section.append(title, dump);
  element('bytes').append(section);
  Object.assign(side, {dump, lines, marked: [], held: []});
  dump.addEventListener('scroll', () => drawLines(side, s));
  dump.addEventListener('mouseover', event => pointAtByte(event, side, false));
  dump.addEventListener('click', event => pointAtByte(event, side, true));
}

function classOf(side, at) {
  const piece = side.pieces[side.owner[at]];
  if (!piece) return 'rest';
  const words = [];
  if (piece.kind === 'state') words.push('state');
  else if (piece.node.structural) words.push('framing');
  else if (piece.node.path.startsWith('header') || piece.kind === 'luid') words.push('head');
  else if (piece.kind === 'var_string' || piece.kind === 'text') words.push('text');
  if (two && (piece.node.differs || piece.node.present[0] !== piece.node.present[1])) words.push('changed');
  if (contains(side.held, at)) words.push('held');
  if (contains(side.marked, at)) words.push('marked');
  return words.join(' ');
}

function drawLines(side) {
  const first = Math.floor(side.dump.scrollTop / lineHeight);
  const inSight = Math.ceil(side.dump.clientHeight / lineHeight) + 1;
  const last = Math.min(Math.ceil(side.data.length / perLine), first + inSight);
  let out = '';
  for (let line = first; line < last; ++line) {
    const from = line * perLine, to = Math.min(from + perLine, side.data.length);
    let hex = '', ascii = '';
    for (let at = from; at < to; ++at) {
      const kind = classOf(side, at), byte = side.data[at];
      const open = '<i data-at="' + at + '"' + (kind ? ' class="' + kind + '"' : '') + '>';
      // The gap belongs to the byte before it, so that a mark has no holes.
      hex += open + byte.toString(16).padStart(2, '0') + (at % perLine === 7 ? '  ' : ' ') + '</i>';
      const shown = byte < 32 || byte > 126 ? '\u00b7' : String.fromCharCode(byte);
      ascii += open + (shown === '<' ? '&lt;' : shown === '&' ? '&amp;' : shown) + '</i>';
    }
    const missing = perLine - (to - from);
    hex += ' '.repeat(3 * missing + (missing > 8 ? 1 : 0));
    const offset = from.toString(16).padStart(6, '0');
    out += '<div class="line"><span class="at">' + offset + '  </span>' + hex + ' ' + ascii + '</div>';
  }
  side.lines.style.top = first * lineHeight + 8 + 'px';
  side.lines.innerHTML = out;
}

function showByte(side, at) {
  const top = Math.floor(at / perLine) * lineHeight, dump = side.dump;
  if (top < dump.scrollTop || top + 2 * lineHeight > dump.scrollTop + dump.clientHeight) {
    dump.scrollTop = Math.max(0, top - dump.clientHeight / 3);
    drawLines(side);
  }
}

// ---- marks

let held = null, pointed = null;

// The nearest row that is there, for a member that is folded away.
function rowOf(node) {
  for (let n = node; n; n = n.parent) {
    if (n.row && n.row.isConnected && n.row.offsetParent !== null) return n;
  }
  return null;
}

function detail(node) {
  const box = element('detail');
  box.replaceChildren();
  if (!node) return;
  const path = document.createElement('b');
  path.textContent = node.path || node.label;
  box.append(path);
  const words = [];
  if (node.type) words.push(node.type);
  sides.forEach((side, s) => {
    const places = bytesOf(node, s), size = places.reduce((sum, r) => sum + r[1] - r[0], 0);
    if (!size) return;
    const last = places[places.length - 1][1] - 1;
    words.push((two ? side.name + ': ' : '') + 'bytes ' + places[0][0] + ' to ' + last + ' (' + size + ')');
  });
  if (node.meaning) words.push(node.meaning);
  box.append('   ' + words.join('  \u00b7  '));
}

function point(node) {
  if (node === pointed) return;
  if (pointed) rows.forEach(n => n.row.classList.remove('marked'));
  pointed = node;
  const row = node && rowOf(node);
  if (row) row.row.classList.add('marked');
  sides.forEach((side, s) => {
    side.marked = node ? bytesOf(node, s) : [];
    drawLines(side);
  });
  detail(node || held);
}

function hold(node) {
  rows.forEach(n => n.row.classList.remove('held'));
  held = node;
  sides.forEach((side, s) => {
    side.held = node ? bytesOf(node, s) : [];
    if (side.held.length) showByte(side, side.held[0][0]);
    drawLines(side);
  });
  if (!node) return;
  reveal(node);
  if (node.row) node.row.classList.add('held');
  detail(node);
  const frame = roots.indexOf(rootOf(node));
  history.replaceState(null, '', '#' + encodeURI(frame + ':' + node.path));
}

const rootOf = node => { while (node.parent) node = node.parent; return node; };

function visibleOwner(node) {
  while (node.parent && !isShown(node)) node = node.parent;
  return node;
}

function pointAtByte(event, side, click) {
  const at = event.target.dataset && event.target.dataset.at;
  if (at === undefined) return;
  const piece = side.pieces[side.owner[Number(at)]];
  if (!piece) return;
  const node = visibleOwner(piece.node);
  point(node);
  if (click) hold(node);
  else if (node.row && node.row.offsetParent !== null) node.row.scrollIntoView({block: 'nearest'});
}

tree.addEventListener('mouseover', event => {
  const row = event.target.closest('.row');
  if (!row) return;
  point(rows.get(row.dataset.id));
  sides.forEach(side => { if (side.marked.length) showByte(side, side.marked[0][0]); });
});
tree.addEventListener('mouseleave', () => point(null));
element('bytes').addEventListener('mouseleave', () => point(null));
tree.addEventListener('click', event => {
  const row = event.target.closest('.row');
  if (!row) return;
  const node = rows.get(row.dataset.id);
  if (event.target.classList.contains('fold')) (node.open ? fold : unfold)(node);
  else hold(node);
});
tree.addEventListener('dblclick', event => {
  const row = event.target.closest('.row');
  if (row && !event.target.classList.contains('fold')) {
    const node = rows.get(row.dataset.id);
    (node.open ? fold : unfold)(node);
  }
});

tree.addEventListener('keydown', event => {
  const shown = [...tree.querySelectorAll('.row')].filter(r => r.offsetParent !== null);
  const here = shown.findIndex(r => held && r.dataset.id === String(held.id));
  const go = index => { if (shown[index]) hold(rows.get(shown[index].dataset.id)); };
  if (event.key === 'ArrowDown') go(here + 1);
  else if (event.key === 'ArrowUp') go(Math.max(0, here - 1));
  else if (event.key === 'ArrowRight' && held) held.open ? go(here + 1) : unfold(held);
  else if (event.key === 'ArrowLeft' && held && held.open && held.children.length) fold(held);
  else if (event.key === 'ArrowLeft' && held && held.parent) hold(held.parent);
  else return;
  event.preventDefault();
});

// ---- search

const hits = new Set();
let order = [], current = -1;

function search() {
  const wanted = element('search').value.trim().toLowerCase();
  hits.clear();
  order = [];
  current = -1;
  const visit = node => {
    if (isShown(node)) {
      const words = [node.parent ? node.name : node.label, ...node.pieces.filter(p => p).map(p => p.value)];
      const found = words.some(w => w.toLowerCase().includes(wanted)) || node.path.toLowerCase() === wanted;
      if (wanted ? found : node.differs) {
        order.push(node);
        if (wanted) hits.add(node);
      }
    }
    if (wanted || node.present[0] === node.present[1]) node.children.forEach(visit);
  };
  roots.forEach(visit);
  rows.forEach(n => n.row.classList.toggle('hit', hits.has(n)));
  tell();
}

function tell() {
  const what = element('search').value.trim() ? '' : two ? ' changes' : '';
  element('found').textContent = !what && !element('search').value.trim() ? ''
    : (current >= 0 ? current + 1 + ' of ' : '') + order.length + what;
}

function step(by) {
  if (!order.length) return;
  current = (current + by + order.length) % order.length;
  if (current < 0) current = order.length - 1;
  hold(order[current]);
  tell();
}

element('search').addEventListener('input', () => { search(); if (order.length && hits.size) step(1); });
element('search').addEventListener('keydown', event => {
  if (event.key === 'Enter') step(event.shiftKey ? -1 : 1);
  if (event.key === 'Escape') { element('search').value = ''; search(); tree.focus(); }
});
element('next').addEventListener('click', () => step(1));
element('previous').addEventListener('click', () => step(-1));
document.addEventListener('keydown', event => {
  if (event.key === '/' && document.activeElement !== element('search')) {
    element('search').focus();
    event.preventDefault();
  }
});

function redraw() {
  drawTree();
  search();
  if (held) hold(held);
}
element('framing').addEventListener('change', redraw);
element('changes').addEventListener('change', redraw);
element('only').hidden = !two;

// ---- beginning

const dark = () => document.documentElement.classList.toggle('dark');
if (matchMedia('(prefers-color-scheme: dark)').matches) dark();
element('theme').addEventListener('click', dark);

element('title').textContent = sides.map(side => side.name).join('  \u2192  ');
const frames = Math.max(...sides.map(side => side.frames.length));
const differences = roots.reduce((sum, root) => sum + root.inside, 0);
element('summary').textContent = frames + (frames === 1 ? ' frame' : ' frames') +
  (two ? ', ' + (differences || 'no') + (differences > 1 ? ' differences' : ' difference') : '');
sides.forEach((side, s) => {
  makeDump(side, s);
  if (!side.broken) return;
  const note = document.createElement('p');
  note.className = 'error';
  note.textContent = (two ? side.name + ': ' : '') + 'broken at ' + side.broken;
  element('summary').after(note);
});
// So much is open that a page is filled and no more.
let budget = 60;
for (const root of roots) root.open = true;
for (const level of [1, 2, 3]) {
  const visit = (node, depth) => {
    if (depth === level && node.children.length && (!two || node.inside) && budget > 0 && node.name !== 'header') {
      node.open = true;
      budget -= node.children.length;
    }
    if (depth < level && node.open) node.children.forEach(child => visit(child, depth + 1));
  };
  roots.forEach(root => visit(root, 0));
}
drawTree();
search();
sides.forEach(side => drawLines(side));
addEventListener('resize', () => sides.forEach(side => drawLines(side)));

function follow() {
  const parts = decodeURI(location.hash.slice(1)).match(/^(?:(\d+):)?(.*)$/);
  if (!parts || (!parts[1] && !parts[2])) return;
  const among = parts[1] === undefined ? roots : roots.slice(Number(parts[1]), Number(parts[1]) + 1);
  for (const root of among) {
    let node = root;
    for (const name of steps(parts[2])) node = node && node.byName.get(name);
    if (node) return hold(node);
  }
}
addEventListener('hashchange', follow);
follow();

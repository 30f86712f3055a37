'use strict';
// The page of tarn view. It contains the bytes of the frames, and shapes that map bytes to members; shapes.h of the tool
// documents them. Nodes of the tree, its rows and the lines of the dump are created only when they become visible, and
// rows that are out of sight are removed, so a page with a million members opens as fast as one with ten. The search
// works in slices, so that typing never waits for it. Two files share one tree.

const data = JSON.parse(document.getElementById('data').textContent);
const sides = data.sides, two = sides.length === 2;
const element = id => document.getElementById(id);
const structural = new Set(['variant', 'flag', 'jump', 'fill', 'zero', 'state', 'marker', 'skipped']);
const isState = name => name === '@state';

// ---- shapes

// An array has elements, then its state and the states of its elements; any other group has names.
const shapes = data.shapes.map(shape => {
  if (typeof shape === 'string') {
    const [, kind, size, rest] = shape.match(/^(\S+) (\d+)(.*)$/);
    return {kind, size: Number(size), rest, structural: structural.has(kind)};
  }
  if (Array.isArray(shape)) {
    return {names: shape.filter((_, i) => i % 2 === 0), inner: shape.filter((_, i) => i % 2 === 1), elements: 0};
  }
  const inner = new Int32Array(shape.elements.length + shape.states);
  inner.set(shape.elements);
  inner.fill(shape.state, shape.elements.length);
  return {names: null, inner, elements: shape.elements.length};
});
// A shape follows the shapes that it contains, so their sizes are known. The shape of an address knows its members.
const addressMembers = ['af', 'prefix_len', 'scope', 'word[0]', 'word[1]', 'word[2]', 'word[3]'];
shapes.forEach((shape, number) => {
  shape.number = number;
  shape.own = shape.address = null;
  if (!shape.inner) return;
  const offsets = shape.offsets = new Uint32Array(shape.inner.length + 1);
  for (let i = 0; i < shape.inner.length; ++i) offsets[i + 1] = offsets[i] + shapes[shape.inner[i]].size;
  shape.size = offsets[shape.inner.length];
  const own = shape.names ? shape.names.indexOf('') : -1;
  if (own >= 0) shape.own = {at: offsets[own], shape: shapes[shape.inner[own]]};
  const members = addressMembers.map(name => shape.names ? shape.names.indexOf(name) : -1);
  if (members.every(i => i >= 0)) {
    shape.address = members.map(i => {
      const member = shapes[shape.inner[i]], piece = member.own || {at: 0, shape: member};
      return {at: offsets[i] + piece.at, size: piece.shape.size};
    });
  }
});
const isArray = shape => Boolean(shape && shape.inner && !shape.names);

// The name of a part; -1-i for the state of the element [i].
function partOf(shape, i) {
  if (shape.names) return shape.names[i];
  return i < shape.elements ? i : i === shape.elements ? '@state' : shape.elements - i;
}

// The index of the last number of an ascending list that is at most `wanted`.
function lastUpTo(numbers, wanted) {
  let from = 0, to = numbers.length;
  while (to - from > 1) {
    const middle = (from + to) >> 1;
    if (numbers[middle] <= wanted) from = middle; else to = middle;
  }
  return from;
}

function numberAt(bytes, at, size) {
  if (size > 6) return bytes.subarray(at, at + size).reduce((sum, byte) => sum << 8n | BigInt(byte), 0n);
  let number = 0;
  for (let i = 0; i < size; ++i) number = number * 256 + bytes[at + i];
  return number;
}

const hex = byte => byte.toString(16).padStart(2, '0');
function quoted(bytes) {
  let out = '"';
  for (const byte of bytes) {
    const letter = String.fromCharCode(byte);
    out += byte < 32 || byte > 126 ? '\\x' + hex(byte) : letter === '"' || letter === '\\' ? '\\' + letter : letter;
  }
  return out + '"';
}

// The text of an address, in the form of the library.
function addressAt(bytes, at, {address}) {
  const [af, length, scope, ...words] = address.map(member => numberAt(bytes, at + member.at, member.size));
  if ([af, length, scope, ...words].every(number => number === 0)) return 'unset';
  const isV4 = af === 2 && words.slice(1).every(word => word === 0);
  if (!isV4 && af !== 10) return [af, scope, ...words].join(',') + '/' + length;
  return (isV4 ? v4Text(words[0]) : v6Text(words)) + (scope ? '%' + scope : '') + '/' + length;
}
const v4Text = word => [word >>> 24, word >>> 16 & 255, word >>> 8 & 255, word & 255].join('.');
function v6Text(words) {
  const parts = words.flatMap(word => [word >>> 16, word & 65535]);
  let from = -1, length = 1;  // the longest run of zeros, if there are two at least
  for (let i = 0; i < parts.length; ++i) {
    let end = i;
    while (parts[end] === 0) ++end;
    if (end - i > length) [from, length] = [i, end - i];
    i = Math.max(i, end - 1);
  }
  const texts = parts.map(part => part.toString(16));
  if (from === 0 && (length === 6 || length === 5 && parts[5] === 65535)) texts.splice(6, 2, v4Text(words[3]));
  if (from < 0) return texts.join(':');
  return texts.slice(0, from).join(':') + '::' + texts.slice(from + length).join(':');
}

// In the form of tarn dissect.
function valueAt(bytes, at, {kind, size, rest}) {
  switch (kind) {
    case 'fill': case 'break': return '';
    case 'zero': return bytes.subarray(at, at + size).every(byte => byte === 0) ? '' : 'not all zero';
    case 'skipped': return size + ' bytes of a newer version';
    case 'text': case 'var_string': return quoted(bytes.subarray(at, at + size));
    case 'luid': {
      const luid = Array.from(bytes.subarray(at, at + size), hex).join('');
      return luid + (data.luids[luid] ? ' ' + data.luids[luid] : '');
    }
  }
  const number = numberAt(bytes, at, size);
  switch (kind) {
    case 'variant': return (number << 24 >> 24) + rest;
    case 'flag': return number + (number & 8 ? ' tracked' : '') + (number & 32 ? ' ra_data' : '');
    case 'jump': return number + ', ends at ' + (at + number);
    case 'mirk_boolean': return number === 0 ? 'false' : number === 1 ? 'true' : 'true (' + number + ')';
  }
  if (rest === ' hex') return '0x' + number.toString(16);
  const enumerators = data.enumerations[kind];
  return enumerators ? number + ' ' + (enumerators[number] || 'out of range') : String(number);
}

// ---- the tree

// For each side, a node has its shape, its offset and, if it is an element, the location of its state. The list of its
// children has holes if it is an array.
let count = 0;
function makeNode(name, parent, index) {
  const path = !parent ? '' : parent.path + (name[0] === '[' || !parent.path ? '' : '.') + name;
  const node = {id: count++, name, path, parent, index, list: null, isArray: false, shape: [null, null], at: [0, 0],
    state: [null, null], type: '', meaning: '', structural: false, inside: null, open: false, row: null,
    below: null, shown: null, boxes: null, breaks: '', isBroken: false};
  const owner = parent && parent.type;
  const member = owner && (data.records[owner] || {})[name];
  if (member) [node.type, node.meaning] = member;
  else if (parent && !parent.parent && name === 'payload') node.type = parent.record;
  else if (parent && name[0] === '[') node.type = owner.replace('[]', '');
  return node;
}

function put(node, s, shape, at) {
  node.shape[s] = shape;
  node.at[s] = at;
  if (!shape.inner) node.structural = shape.structural;
  const own = shape.inner ? shape.own && shape.own.shape : shape;
  if (!node.type && own) node.type = own.kind;
}

// The piece of the node itself on one side, without its children.
function pieceOf(node, s) {
  const shape = node.shape[s];
  if (!shape || shape.inner && !shape.own) return null;
  return shape.inner ? {at: node.at[s] + shape.own.at, shape: shape.own.shape} : {at: node.at[s], shape};
}
const isAddress = (node, s) => isOn(node, s) && Boolean(node.shape[s].address);
const valueOf = (node, s) => {
  if (isAddress(node, s)) return addressAt(sides[s].data, node.at[s], node.shape[s]);
  const piece = pieceOf(node, s);
  return piece && valueAt(sides[s].data, piece.at, piece.shape);
};
const isOn = (node, s) => node.shape[s] !== null;

const nameOf = part => typeof part === 'number' ? '[' + (part < 0 ? -1 - part : part) + ']' : part;

// Makes the list of children, but not the elements of an array.
function list(node) {
  if (node.list) return node.list;
  node.isArray = sides.every((side, s) => !isOn(node, s) || isArray(node.shape[s]));
  node.list = [];
  const named = new Map();
  const below = name => {
    if (!named.has(name)) {
      named.set(name, makeNode(name, node, node.list.length));
      node.list.push(named.get(name));
    }
    return named.get(name);
  };
  if (node.isArray) node.list.length = Math.max(...node.shape.map(shape => shape ? shape.elements : 0));
  sides.forEach((side, s) => {
    const shape = node.shape[s];
    for (let i = node.isArray && shape ? shape.elements : 0; shape && shape.inner && i < shape.inner.length; ++i) {
      const part = partOf(shape, i), at = node.at[s] + shape.offsets[i], inner = shapes[shape.inner[i]];
      if (node.isArray && part !== '@state') break;
      if (part === '') continue;
      if (part < 0) below(nameOf(part)).state[s] = {at, shape: inner};
      else put(below(nameOf(part)), s, inner, at);
    }
    if (node.state[s]) put(below('@state'), s, node.state[s].shape, node.state[s].at);
  });
  return node.list;
}

function childAt(node, i) {
  const all = list(node);
  if (all[i]) return all[i];
  const child = all[i] = makeNode(nameOf(i), node, i);
  sides.forEach((side, s) => {
    const shape = node.shape[s];
    if (!shape || i >= shape.elements) return;
    put(child, s, shapes[shape.inner[i]], node.at[s] + shape.offsets[i]);
    const k = shape.elements + 1 + i, at = node.at[s] + shape.offsets[k];
    if (k < shape.inner.length) child.state[s] = {at, shape: shapes[shape.inner[k]]};
  });
  return child;
}

function childOf(node, name) {
  list(node);
  if (!node.isArray) return node.list.find(child => child.name === name);
  if (name === '@state') return node.list[sizeOf(node)];
  const i = name[0] === '[' ? Number(name.slice(1, -1)) : -1;
  return Number.isInteger(i) && i >= 0 && i < sizeOf(node) ? childAt(node, i) : undefined;
}
// The number of elements.
const sizeOf = node => Math.max(...node.shape.map(shape => shape ? shape.elements || 0 : 0));

// "payload.list[0].id" has the steps payload, list, [0], id. The words of an address have names such as "word[0]".
const steps = path => path.match(/word\[[0-3]\]|\[[^\]]*\]|[^.[]+/g) || [];

function bytesOfBase64(text) {
  const letters = 'ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/', values = new Uint8Array(128);
  for (let i = 0; i < letters.length; ++i) values[letters.charCodeAt(i)] = i;
  const bytes = new Uint8Array(text.length / 4 * 3), value = i => values[text.charCodeAt(i)];
  for (let from = 0, to = 0; from < text.length; from += 4) {
    const bits = value(from) << 18 | value(from + 1) << 12 | value(from + 2) << 6 | value(from + 3);
    bytes[to++] = bits >> 16;
    bytes[to++] = bits >> 8;
    bytes[to++] = bits;
  }
  return bytes.subarray(0, bytes.length - (text.endsWith('==') ? 2 : text.endsWith('=') ? 1 : 0));
}

const roots = [];
sides.forEach((side, s) => {
  side.data = bytesOfBase64(side.bytes);
  side.bytes = '';
  side.starts = [];
  side.read = 0;
  for (let f = 0; 2 * f < side.frames.length; ++f) {
    const [name, record] = data.headings[side.frames[2 * f + 1]], shape = shapes[side.frames[2 * f]];
    const root = roots[f] || (roots[f] = makeNode('frame ' + f, null, f));
    root.label = root.label && name && root.label !== name ? root.label + ' / ' + name
      : name || root.label || 'ui_req_msg';
    put(root, s, shape, side.read);
    side.starts.push(side.read);
    side.read += shape.size;
    // The luid of the frame identifies its payload.
    root.record = root.record || record;
  }
});

// The node where a frame breaks: one that has bytes, such as a jump, or one that the frame should contain.
sides.forEach((side, s) => {
  if (!side.broken) return;
  let node = roots[side.starts.length - 1];
  const way = steps(side.broken.path);
  if (!way.length) way.push('@end');
  for (const name of way) {
    const known = childOf(node, name) || childOf(node, '@' + name);
    node.isBroken = true;
    if (!known) {
      side.rest = makeNode(name, node, list(node).length);
      put(side.rest, s, {kind: 'break', size: side.data.length - side.read, structural: true}, side.read);
      node.list.push(side.rest);
    }
    node = known || side.rest;
    if (!known) break;
  }
  Object.assign(node, {isBroken: true, breaks: side.broken.reason});
  side.broken.node = node;
});

// The node that a byte belongs to.
function ownerOf(s, at) {
  const side = sides[s];
  if (at < 0 || at >= side.read) return side.rest || null;
  let node = roots[lastUpTo(side.starts, at)];
  while (node.shape[s].inner) {
    const shape = node.shape[s], part = partOf(shape, lastUpTo(shape.offsets, at - node.at[s]));
    if (part === '') break;
    node = childOf(node, nameOf(part));
    if (part < 0) return childOf(node, '@state');
  }
  return node;
}

// ---- differences

const isOneSided = node => two && Boolean(node) && isOn(node, 0) !== isOn(node, 1);

function sameBytes(a, b, size) {
  for (let i = 0; i < size; ++i) if (sides[0].data[a + i] !== sides[1].data[b + i]) return false;
  return true;
}

// The parts that two shapes have in common, by name, and the number of members that only one of them has.
const pairs = new Map(), mostPairs = 5000;
function pairOf(x, y) {
  const key = x.number * shapes.length + y.number;
  if (pairs.has(key)) return pairs.get(key);
  const [partsX, partsY] = [x, y].map(shape => {
    const parts = new Map();
    if (!shape.inner) parts.set('', {at: 0, shape});
    for (let i = 0; shape.inner && i < shape.inner.length; ++i) {
      const part = partOf(shape, i);
      if (!(part < 0)) parts.set(nameOf(part), {at: shape.offsets[i], shape: shapes[shape.inner[i]]});
    }
    return parts;
  });
  const pair = {both: [], single: 0};
  for (const [parts, others] of [[partsX, partsY], [partsY, partsX]]) {
    for (const [name, part] of parts) {
      const other = others.get(name);
      if (!other) pair.single += Number(name !== '' && !part.shape.structural);
      else if (parts === partsX) {
        pair.both.push({isState: isState(name), x: part.shape, y: other.shape, a: part.at, b: other.at});
      }
    }
  }
  if (pairs.size === mostPairs) pairs.clear();
  pairs.set(key, pair);
  return pair;
}

// The number of differences between the shape x at a in one file and y at b in the other. Makes no nodes. Framing other
// than state is redundant: a difference in it is also one in the members.
function differencesIn(x, a, y, b) {
  if (x === y && sameBytes(a, b, x.size)) return 0;
  if (!x.inner && !y.inner) return Number(!x.structural);
  let sum = 0;
  if (isArray(x) && isArray(y)) {
    for (let i = Math.max(x.elements, y.elements); i-- > 0;) sum += differencesInElement(x, a, y, b, i);
    return sum + Number(stateDiffers(x, a, y, b, 0));
  }
  const {both, single} = pairOf(x, y);
  for (const part of both) {
    sum += part.isState ? Number(!sameBytes(a + part.a, b + part.b, 1))
      : differencesIn(part.x, a + part.a, part.y, b + part.b);
  }
  return x.address && y.address ? Math.min(1, sum + single) : sum + single;
}
function differencesInElement(x, a, y, b, i) {
  if (i >= x.elements || i >= y.elements) return 1;
  return Number(stateDiffers(x, a, y, b, i + 1)) +
    differencesIn(shapes[x.inner[i]], a + x.offsets[i], shapes[y.inner[i]], b + y.offsets[i]);
}
// The states of two arrays: the first is that of the array, the others are those of the elements.
function stateDiffers(x, a, y, b, which) {
  const i = x.elements + which, j = y.elements + which;
  return i < x.inner.length && j < y.inner.length && !sameBytes(a + x.offsets[i], b + y.offsets[j], 1);
}

// The number of differences in a node and below it.
function inside(node) {
  if (node.inside === null) {
    const [x, y] = node.shape, [a, b] = node.at, [left, right] = node.state;
    if (!two || isInAddress(node)) node.inside = 0;
    else if (isOneSided(node)) node.inside = Number(!node.structural);
    else if (isState(node.name)) node.inside = Number(!sameBytes(a, b, 1));
    else node.inside = differencesIn(x, a, y, b) + Number(Boolean(left && right) && !sameBytes(left.at, right.at, 1));
  }
  return node.inside;
}

const areAddresses = node => isAddress(node, 0) && isAddress(node, 1);
const isInAddress = ({parent}) => Boolean(parent) &&
  (areAddresses(parent) || Boolean(parent.parent) && areAddresses(parent.parent));

function valuesDiffer(node) {
  const [a, b] = [valueOf(node, 0), valueOf(node, 1)];
  return a !== null && b !== null && a !== b && (!node.structural || isState(node.name));
}
// Whether the node itself differs. What differs in an address is one difference.
function differs(node) {
  if (isInAddress(node)) return false;
  if (isOneSided(node)) return !node.structural;
  return areAddresses(node) ? inside(node) > 0 : valuesDiffer(node);
}

// Whether there are differences in a child, without making it if it is an element.
function differsAt(node, i) {
  if (isOneSided(node)) return true;
  const [x, y] = node.shape, [a, b] = node.at;
  return (node.list[i] ? inside(node.list[i]) : differencesInElement(x, a, y, b, i)) > 0;
}

const isShown = node => node.isBroken || (!node.structural || element('framing').checked) &&
  (!element('changes').checked || inside(node) > 0 || isOneSided(node.parent));
const hasShown = node => shownBelow(node).length > 0;

// What is shown below a node: a number of children, and each of them when it is needed.
function shownBelow(node) {
  list(node);
  if (node.isArray) {
    const state = node.list[sizeOf(node)], length = sizeOf(node) + Number(Boolean(state) && isShown(state));
    if (!element('changes').checked || isOneSided(node)) {
      return {length, at: i => childAt(node, i), indexOf: child => child.index < length ? child.index : -1};
    }
    const changed = [];
    for (let i = 0; i < length; ++i) if (differsAt(node, i) || node.list[i] && node.list[i].isBroken) changed.push(i);
    const indexOf = child => { const i = lastUpTo(changed, child.index); return changed[i] === child.index ? i : -1; };
    return {length: changed.length, at: i => childAt(node, changed[i]), indexOf};
  }
  const shown = list(node).filter(isShown);
  return {length: shown.length, at: i => shown[i], indexOf: child => shown.indexOf(child)};
}

// ---- rows

const tree = element('tree');
const rows = new Map();
const text = (parent, kind, words) => {
  const span = document.createElement('span');
  span.className = kind;
  span.textContent = words;
  parent.append(span);
};

function valueClass(kind, value) {
  if (kind === 'var_string' || kind === 'text') return 'value text';
  return kind === 'luid' || /^[a-z]|^\d+ [A-Z]/.test(value) ? 'value word' : 'value';
}

// "class 1000" for an element, from the members that identify it; nothing if it has none of them.
function keyText(node) {
  const [element, names] = node.name[0] === '[' && data.elements[node.type] || ['', []], s = isOn(node, 0) ? 0 : 1;
  const values = names.map(name => childOf(node, name)).filter(Boolean).map(member => valueOf(member, s));
  return values.length ? element + ' ' + values.join(' ') : '';
}

// A row shows these words; a screen reader reads them with commas.
function fill(row, node) {
  const words = [], add = (kind, shown, read = shown) => {
    text(row, kind, shown);
    words.push(read);
  };
  text(row, 'fold', '');
  add('name', node.parent ? node.name : node.label);
  const key = keyText(node);
  if (key) add('key', key);
  const [a, b] = [valueOf(node, 0), valueOf(node, 1)];
  if (two && a !== null && b !== null && a !== b && !node.structural) {
    add('value old', a);
    add('value new', b, 'now ' + b);
  } else if (a || b) {
    const piece = pieceOf(node, a === null ? 1 : 0);
    add(valueClass(piece && piece.shape.kind, a || b), a || b);
  }
  const size = bytesOf(node, isOn(node, 0) ? 0 : 1).reduce((sum, r) => sum + r[1] - r[0], 0);
  if (node.breaks) add('badge broken', 'breaks here: ' + node.breaks);
  else if (node.isBroken && !node.parent) add('badge broken', 'broken');
  const hasMembers = node.isArray || list(node).some(c => !c.structural);
  if (hasMembers) add('type', (node.type ? node.type + ', ' : '') + size + ' bytes');
  const state = childOf(node, '@state');
  if (state) {
    const values = [valueOf(state, 0), valueOf(state, 1)].filter(v => v !== null);
    if (values.some(v => v !== '0')) add('badge', 'state ' + [...new Set(values)].join(' \u2192 '));
  }
  if (isOneSided(node) && !node.breaks) words.push('only in ' + sides[isOn(node, 0) ? 0 : 1].name);
  row.setAttribute('aria-label', words.join(', '));
}

function showFold(node) {
  const folds = hasShown(node);
  node.row.querySelector('.fold').textContent = folds ? (node.open ? '\u25bc' : '\u25b6') : '';
  if (folds) node.row.setAttribute('aria-expanded', node.open);
}

function makeRow(node, depth, index, of) {
  const holder = document.createElement('div'), row = document.createElement('div');
  row.className = 'row';
  row.setAttribute('role', 'treeitem');
  row.setAttribute('aria-level', depth + 1);
  row.setAttribute('aria-posinset', index + 1);
  row.setAttribute('aria-setsize', of);
  row.setAttribute('aria-selected', node === selected);
  row.dataset.id = node.id;
  row.dataset.path = node.path;
  row.style.setProperty('--depth', depth);
  if (!node.parent) row.classList.add('frame');
  if (node.structural && !node.breaks) row.classList.add('framing');
  if (node.meaning) row.dataset.meaning = node.meaning;
  if (node.breaks) row.classList.add('broken');
  else if (two) {
    if (isOneSided(node)) row.classList.add(isOn(node, 0) ? 'a' : 'b');
    else if (differs(node)) row.classList.add('changed');
    else if (inside(node)) row.classList.add('inside');
  }
  if (hits.has(keyOf(node))) row.classList.add('hit');
  if (node === selected) row.classList.add('selected');
  fill(row, node);
  holder.append(row);
  Object.assign(node, {row, holder, depth, below: null, boxes: null});
  rows.set(String(node.id), node);
  showFold(node);
  setTabStop(node);
  if (node.open) unfold(node);
  return holder;
}

// Each part of a long list is a box that has rows only while it is near what is visible; otherwise it is as high as they
// were.
const atOnce = 200, rowHeight = 22;
const parts = new Map();
const sight = new IntersectionObserver(boxes => {
  for (const {target, isIntersecting} of boxes) {
    if (isIntersecting) draw(target);
    else if (target.offsetParent) erase(target);
  }
}, {root: tree, rootMargin: '400px'});

function drawRows(into, node, depth) {
  const shown = node.shown = shownBelow(node);
  if (shown.length <= atOnce) {
    for (let i = 0; i < shown.length; ++i) into.append(makeRow(shown.at(i), depth, i, shown.length));
    return;
  }
  node.boxes = [];
  for (let from = 0; from < shown.length; from += atOnce) {
    const box = document.createElement('div'), to = Math.min(from + atOnce, shown.length);
    box.className = 'part';
    box.style.height = (to - from) * rowHeight + 'px';
    parts.set(box, {shown, from, to, depth, drawn: false});
    node.boxes.push(box);
  }
  draw(node.boxes[0]);
  into.append(...node.boxes);
  node.boxes.forEach(box => sight.observe(box));
}

function draw(box) {
  const part = parts.get(box);
  if (!part || part.drawn) return;
  part.drawn = true;
  box.style.height = '';
  for (let i = part.from; i < part.to; ++i) box.append(makeRow(part.shown.at(i), part.depth, i, part.shown.length));
}

function erase(box) {
  const part = parts.get(box);
  if (!part || !part.drawn) return;
  part.drawn = false;
  box.style.height = box.offsetHeight + 'px';
  for (const inner of box.querySelectorAll('.part')) {
    sight.unobserve(inner);
    parts.delete(inner);
  }
  for (const row of box.querySelectorAll('.row')) {
    const node = rows.get(row.dataset.id);
    Object.assign(node, {row: null, holder: null, below: null, boxes: null});
    rows.delete(row.dataset.id);
    setTabStop(node);
  }
  box.replaceChildren();
}

// The box of a node's row, if the list is long.
function boxOf(node) {
  const {shown, boxes} = node.parent || trunk;
  const index = boxes ? shown.indexOf(node) : -1;
  return index < 0 ? null : boxes[Math.floor(index / atOnce)];
}

function unfold(node) {
  node.open = true;
  if (!node.below) {
    node.below = document.createElement('div');
    drawRows(node.below, node, node.depth + 1);
    node.holder.append(node.below);
  }
  node.below.hidden = false;
  if (node.boxes) draw(node.boxes[0]);
  showFold(node);
}

function fold(node) {
  node.open = false;
  if (node.below) node.below.hidden = true;
  showFold(node);
}

const trunk = {list: roots, isArray: false, parent: null, shape: [null, null]};
function drawTree() {
  rows.forEach(node => Object.assign(node, {row: null, holder: null, below: null, boxes: null}));
  rows.clear();
  sight.disconnect();
  parts.clear();
  tree.replaceChildren();
  drawRows(tree, trunk, 0);
  if (!cursor && trunk.shown.length) moveCursor(trunk.shown.at(0));
}

// Unfolds all ancestors, so that the row exists.
function reveal(node) {
  const way = [];
  for (let n = node; n; n = n.parent) way.unshift(n);
  for (const n of way) {
    const box = boxOf(n);
    if (box) draw(box);
    if (n !== node && n.row && !n.open) unfold(n);
  }
  if (node.row) node.row.scrollIntoView({block: 'nearest'});
}

// ---- bytes

// The byte ranges of a node and its descendants.
function bytesOf(node, s) {
  if (!isOn(node, s)) return [];
  const ranges = [[node.at[s], node.at[s] + node.shape[s].size]];
  const state = node.state[s];
  if (state) ranges.push([state.at, state.at + state.shape.size]);
  return ranges.filter(([from, to]) => from < to);
}

const contains = (ranges, at) => ranges.some(([from, to]) => from <= at && at < to);
// Browsers limit the height of an element. A dump that is higher is as high as this, and scrolls faster.
const lineHeight = 20, perLine = 16, highest = 16000000;

function makeDump(side, s) {
  const [section, dump, spacer, lines] = [1, 2, 3, 4].map(() => document.createElement('div'));
  const title = document.createElement('h2');
  section.className = 'side';
  dump.className = 'dump';
  dump.tabIndex = 0;
  dump.setAttribute('role', 'region');
  dump.setAttribute('aria-label', 'Bytes of ' + side.name);
  lines.className = 'lines';
  title.textContent = side.name + ', ' + side.data.length + ' bytes';
  // A frame may break behind the last byte.
  side.cells = side.data.length + Number(Boolean(side.broken) && side.broken.at === side.data.length);
  side.height = Math.ceil(side.cells / perLine) * lineHeight + 16;
  spacer.style.height = Math.min(side.height, highest) + 'px';
  dump.append(spacer, lines);
  section.append(title, dump);
  element('bytes').append(section);
  Object.assign(side, {dump, lines, marked: [], selected: []});
  dump.addEventListener('scroll', () => drawLines(side, s));
  dump.addEventListener('mouseover', event => pointAtByte(event, s, false));
  dump.addEventListener('click', event => pointAtByte(event, s, true));
}

function classOf(s, at) {
  const side = sides[s], node = ownerOf(s, at);
  const words = [], kind = node && pieceOf(node, s).shape.kind;
  if (side.broken && side.broken.at === at) words.push('break');
  if (!node || kind === 'break') words.push('rest');
  if (!node) return words.join(' ');
  if (kind === 'state') words.push('state');
  else if (node.structural) words.push('framing');
  else if (node.path.startsWith('header') || kind === 'luid') words.push('head');
  else if (kind === 'var_string' || kind === 'text') words.push('text');
  if (two && (isOneSided(node) || valuesDiffer(node))) words.push('changed');
  if (contains(side.selected, at)) words.push('selected');
  if (contains(side.marked, at)) words.push('marked');
  return words.join(' ');
}

// How far the lines move for each pixel that is scrolled: so far that the last ones are reached at the end.
const pace = ({height, dump}) => height > highest ? (height - dump.clientHeight) / (highest - dump.clientHeight) : 1;

function drawLines(side, s) {
  const top = side.dump.scrollTop * pace(side), first = Math.floor(top / lineHeight);
  const inSight = Math.ceil(side.dump.clientHeight / lineHeight) + 1;
  const last = Math.min(Math.ceil(side.cells / perLine), first + inSight);
  let out = '';
  for (let line = first; line < last; ++line) {
    const from = line * perLine, to = Math.min(from + perLine, side.cells);
    let words = '', ascii = '';
    for (let at = from; at < to; ++at) {
      const kind = classOf(s, at), isByte = at < side.data.length, byte = isByte ? side.data[at] : 32;
      const open = '<i data-at="' + at + '"' + (kind ? ' class="' + kind + '"' : '') + '>';
      // The gap belongs to the preceding byte, so that highlights are continuous.
      words += open + (isByte ? hex(byte) : '  ') + (at % perLine === 7 ? '  ' : ' ') + '</i>';
      const shown = byte < 32 || byte > 126 ? '\u00b7' : String.fromCharCode(byte);
      ascii += open + (shown === '<' ? '&lt;' : shown === '&' ? '&amp;' : shown) + '</i>';
    }
    const missing = perLine - (to - from);
    words += ' '.repeat(3 * missing + (missing > 8 ? 1 : 0));
    const offset = from.toString(16).padStart(6, '0');
    out += '<div class="line"><span class="at">' + offset + '  </span>' + words + ' ' + ascii + '</div>';
  }
  side.lines.style.top = side.dump.scrollTop - top % lineHeight + 8 + 'px';
  side.lines.innerHTML = out;
}

function showByte(s, at) {
  const side = sides[s], dump = side.dump, shown = dump.scrollTop * pace(side);
  const top = Math.floor(at / perLine) * lineHeight;
  if (top < shown || top + 2 * lineHeight > shown + dump.clientHeight) {
    dump.scrollTop = Math.max(0, top - dump.clientHeight / 3) / pace(side);
    drawLines(side, s);
  }
}

// ---- marks

// The row of the cursor is the one that the Tab key enters.
let selected = null, pointed = null, cursor = null;

function moveCursor(node) {
  const old = cursor;
  cursor = node;
  for (const moved of [old, node]) if (moved) setTabStop(moved);
}
// If the row of the cursor is out of sight, the tree itself is entered.
function setTabStop(node) {
  if (node.row) node.row.tabIndex = node === cursor ? 0 : -1;
  if (node === cursor) tree.tabIndex = node.row ? -1 : 0;
}

// The row of the nearest visible ancestor.
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
    const ranges = bytesOf(node, s), size = ranges.reduce((sum, r) => sum + r[1] - r[0], 0);
    if (!size) return;
    const last = ranges[ranges.length - 1][1] - 1;
    words.push((two ? side.name + ': ' : '') + 'bytes ' + ranges[0][0] + ' to ' + last + ' (' + size + ')');
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
    drawLines(side, s);
  });
  detail(node || selected);
}

function showSelected(isSelected) {
  if (!selected || !selected.row) return;
  selected.row.classList.toggle('selected', isSelected);
  selected.row.setAttribute('aria-selected', isSelected);
}

function select(node) {
  showSelected(false);
  selected = node;
  sides.forEach((side, s) => {
    side.selected = node ? bytesOf(node, s) : [];
    if (side.selected.length) showByte(s, side.selected[0][0]);
    else if (node && side.broken && node === side.broken.node) showByte(s, side.broken.at);
    drawLines(side, s);
  });
  detail(node);
  history.replaceState(null, '', '#' + (node ? encodeURI(keyOf(node)) : ''));
  if (!node) return;
  reveal(node);
  showSelected(true);
  moveCursor(node);
}

const rootOf = node => { while (node.parent) node = node.parent; return node; };

function visibleOwner(node) {
  while (node.parent && !isShown(node)) node = node.parent;
  return node;
}

function pointAtByte(event, s, click) {
  const at = event.target.dataset && event.target.dataset.at;
  if (at === undefined) return;
  const owner = ownerOf(s, Number(at));
  if (!owner) return;
  const node = visibleOwner(owner);
  point(node);
  if (click) select(node);
  else if (node.row && node.row.offsetParent !== null) node.row.scrollIntoView({block: 'nearest'});
}

tree.addEventListener('mouseover', event => {
  const row = event.target.closest('.row');
  if (!row) return;
  point(rows.get(row.dataset.id));
  sides.forEach((side, s) => { if (side.marked.length) showByte(s, side.marked[0][0]); });
});
tree.addEventListener('mouseleave', () => point(null));
element('bytes').addEventListener('mouseleave', () => point(null));
tree.addEventListener('click', event => {
  const row = event.target.closest('.row');
  if (!row) return;
  const node = rows.get(row.dataset.id);
  if (event.target.classList.contains('fold')) foldsAndUnfolds(node);
  else select(node);
});
tree.addEventListener('dblclick', event => {
  const row = event.target.closest('.row');
  if (row && !event.target.classList.contains('fold')) {
    foldsAndUnfolds(rows.get(row.dataset.id));
  }
});

// ---- keys

// What is shown below a node, whether or not it is drawn.
const shownIn = node => node.below || node === trunk ? node.shown : shownBelow(node);

function rowAfter(node) {
  const below = node.open ? shownIn(node) : null;
  if (below && below.length) return below.at(0);
  for (let n = node; n; n = n.parent) {
    const {length, at, indexOf} = shownIn(n.parent || trunk), i = indexOf(n) + 1;
    if (i < length) return at(i);
  }
  return node;
}

function rowBefore(node) {
  const {at, indexOf} = shownIn(node.parent || trunk), i = indexOf(node);
  return i > 0 ? lastRowIn(at(i - 1)) : node.parent || node;
}

function lastRowIn(node) {
  for (let below; node.open && (below = shownIn(node)).length;) node = below.at(below.length - 1);
  return node;
}

function repeated(move, node) {
  for (let i = Math.floor(tree.clientHeight / rowHeight) - 1; i > 0; --i) node = move(node);
  return node;
}

const foldsAndUnfolds = node => (node.open ? fold : unfold)(node);
// Each returns the node to go to.
const treeKeys = {
  ArrowDown: rowAfter,
  ArrowUp: rowBefore,
  PageDown: node => repeated(rowAfter, node),
  PageUp: node => repeated(rowBefore, node),
  Home: () => trunk.shown.at(0),
  End: () => lastRowIn(trunk.shown.at(trunk.shown.length - 1)),
  ArrowRight: node => {
    if (node.open) return rowAfter(node).parent === node ? rowAfter(node) : node;
    if (hasShown(node)) unfold(node);
    return node;
  },
  ArrowLeft: node => {
    if (!node.open || !hasShown(node)) return node.parent || node;
    fold(node);
    return node;
  },
  Enter: node => {
    if (hasShown(node)) foldsAndUnfolds(node);
    return node;
  },
};

function enterTree() {
  if (!cursor) return;
  reveal(cursor);
  if (cursor.row) cursor.row.focus({preventScroll: true});
}
// The focus is lost if its row gets out of sight; then the keys still work.
document.addEventListener('keydown', event => {
  const {key, target} = event, move = treeKeys[key];
  if (event.ctrlKey || event.altKey || event.metaKey || target === element('search')) return;
  if (key === '/') element('search').focus();
  else if (key === 'n' || key === 'p') {
    step(key === 'n' ? 1 : -1);
    if (tree.contains(target)) enterTree();
  } else if (move && cursor && (target === document.body || tree.contains(target))) {
    reveal(cursor);
    select(move(cursor));
    enterTree();
  } else return;
  event.preventDefault();
});
tree.addEventListener('focusin', event => {
  if (event.target === tree) enterTree();
  else moveCursor(rows.get(event.target.dataset.id));
});

// ---- search

// Hits are kept by frame and path, so that a node is made only for the one that is looked at.
const hits = new Set(), most = 5000;
let order = [], current = -1, scan = null;
const keyOf = node => rootOf(node).index + ':' + node.path;
function nodeOf(key) {
  const colon = key.indexOf(':');
  let node = roots[Number(key.slice(0, colon))];
  for (const name of steps(key.slice(colon + 1))) node = node && childOf(node, name);
  return node;
}

function addHit(key) {
  if (hits.has(key) || order.length === most) return;
  if (element('changes').checked && !isShown(nodeOf(key))) return;
  hits.add(key);
  order.push(key);
}

// Looks through all bytes, one slice after the other, so that the page reacts in between on slow machines, too. The clock
// is read after a number of values; a piece that cannot contain the text is as much work as a part of a value.
const sliceMilliseconds = 10, perReading = 1000;
class Scan {
  constructor(wanted, follows) {
    this.wanted = wanted;
    this.follows = follows;
    this.framing = element('framing').checked;
    this.next = 0;    // the next frame of a side, the sides of a frame one after the other
    this.stack = [];  // the groups around the current piece: its shape, its offset, its path, the next part in it
    this.digits = /^\d+$/.test(wanted);
    this.inElement = /^[\d[\]]+$/.test(wanted);
    this.inHex = /^(0?x)?[\da-f]*$/.test(wanted);
    this.inAddress = /^[\da-f.:/%,]+$/.test(wanted) || 'unset'.includes(wanted);
    this.named = new Map();
    // A shape follows the shapes that it contains.
    this.may = new Uint8Array(shapes.length);
    shapes.forEach((shape, n) => {
      this.may[n] = Number(!shape.inner ? this.mayBe(shape) : shape.names
        ? shape.names.some((name, i) => this.isNamed(name) || this.may[shape.inner[i]]) ||
          shape.address && this.inAddress
        : this.inElement || shape.inner.some(inner => this.may[inner]));
    });
    // A path is where to go, not what to look for.
    if (/[.[]/.test(wanted)) roots.forEach(root => {
      const node = nodeOf(root.index + ':' + wanted);
      if (node && isShown(node)) addHit(keyOf(node));
    });
    if (hits.size) this.next = roots.length * sides.length;
  }

  isNamed(part) {
    if (typeof part === 'number') return part >= 0 && this.inElement && nameOf(part).includes(this.wanted);
    if (!this.named.has(part)) this.named.set(part, part !== '' && part.includes(this.wanted));
    return this.named.get(part);
  }
  // Whether a value of the shape can contain the text: most kinds have digits only.
  mayBe({kind, structural, rest}) {
    if (structural) return this.framing;
    if (rest === ' hex') return this.inHex;
    return this.digits || data.enumerations[kind] || !/^(u_int|count|length)/.test(kind);
  }
  hit(path) { addHit(this.frame + ':' + path); }

  // Returns whether there is more.
  run() {
    const end = performance.now() + sliceMilliseconds;
    for (let work = perReading; work > 0 || performance.now() < end;) {
      if (work <= 0) work = perReading;
      if (order.length === most) return false;
      const group = this.stack[this.stack.length - 1];
      if (!group) {
        if (this.next === roots.length * sides.length) return false;
        this.start();
        --work;
      } else if (group.i === group.shape.inner.length) {
        this.stack.pop();
      } else {
        work -= this.look(group, group.i++);
      }
    }
    return true;
  }
  start() {
    const s = this.side = this.next % sides.length, root = roots[this.frame = Math.floor(this.next++ / sides.length)];
    if (root.label.toLowerCase().includes(this.wanted)) this.hit('');
    if (isOn(root, s) && root.shape[s].inner) this.stack.push({shape: root.shape[s], at: root.at[s], path: '', i: 0});
  }
  // Returns the work that it was.
  look(group, i) {
    const part = partOf(group.shape, i), number = group.shape.inner[i], inner = shapes[number];
    const found = this.isNamed(part);
    if (!found && !this.may[number] || inner.structural && !this.framing) return 1 / 8;
    const at = group.at + group.shape.offsets[i];
    let path = group.path;
    if (part !== '') path += (typeof part === 'string' && path ? '.' : '') + nameOf(part) + (part < 0 ? '.@state' : '');
    if (found || part < 0 && '@state'.includes(this.wanted)) this.hit(path);
    const bytes = sides[this.side].data;
    if (inner.inner) {
      if (inner.address && this.inAddress && addressAt(bytes, at, inner).includes(this.wanted)) this.hit(path);
      // The members of an address are found by their names; their values are those of the address.
      this.stack.push({shape: inner, at, path, i: 0, isAddress: Boolean(inner.address) || group.isAddress});
      return inner.address ? 4 : 1;
    }
    if (group.isAddress && !inner.structural) return 1;
    if (valueAt(bytes, at, inner).toLowerCase().includes(this.wanted)) this.hit(path);
    return 1 + inner.size / 8;
  }
}

function search(follows) {
  const wanted = element('search').value.trim().toLowerCase();
  hits.clear();
  order = [];
  current = -1;
  scan = wanted ? new Scan(wanted, follows) : null;
  const visit = node => {
    if (order.length === most) return;
    if (isShown(node) && differs(node)) order.push(keyOf(node));
    if (isOneSided(node)) return;
    for (let i = 0; i < list(node).length && order.length < most; ++i) if (differsAt(node, i)) visit(childAt(node, i));
  };
  if (!wanted && two) roots.forEach(visit);
  if (scan) continueSearch(scan);
  else {
    if (selected) current = order.indexOf(keyOf(selected));
    showHits();
  }
}

function continueSearch(which) {
  if (which !== scan) return;
  const {follows} = scan, more = scan.run();
  if (!more) scan = null;
  if (!follows) current = selected ? order.indexOf(keyOf(selected)) : -1;
  showHits();
  if (follows && current < 0 && order.length) step(1);
  if (follows && !more && !order.length) select(null);
  if (more) setTimeout(continueSearch, 0, which);
}

function showHits() {
  rows.forEach(n => n.row.classList.toggle('hit', hits.has(keyOf(n))));
  showFound();
}

function showFound() {
  const searched = element('search').value.trim(), front = current >= 0 ? current + 1 + ' of ' : '';
  const more = scan ? '\u2026' : order.length === most ? ' or more' : '';
  const count = searched && !scan && !order.length ? 'nothing found' : front + order.length + more;
  element('found').textContent = searched ? count : two ? count + ' changes' : '';
}

function step(by) {
  if (!order.length) return;
  current = current < 0 ? (by > 0 ? 0 : order.length - 1) : (current + by + order.length) % order.length;
  select(nodeOf(order[current]));
  showFound();
}

// Later, so that the letter is drawn before.
element('search').addEventListener('input', () => setTimeout(search, 0, true));
element('search').addEventListener('keydown', event => {
  if (event.key === 'Enter') step(event.shiftKey ? -1 : 1);
  if (event.key === 'Escape') { element('search').value = ''; search(); enterTree(); }
});
element('next').addEventListener('click', () => step(1));
element('previous').addEventListener('click', () => step(-1));
function redraw() {
  [cursor, selected] = [cursor, selected].map(node => {
    const owner = node && visibleOwner(node);
    return owner && isShown(owner) ? owner : null;
  });
  drawTree();
  search();
  select(selected);
}
element('framing').addEventListener('change', redraw);
element('changes').addEventListener('change', redraw);
element('only').hidden = !two;

// ---- start

const dark = () => document.documentElement.classList.toggle('dark');
if (matchMedia('(prefers-color-scheme: dark)').matches) dark();
element('theme').addEventListener('click', dark);

element('title').textContent = sides.map(side => side.name).join('  \u2192  ');
const frames = roots.length;
const differences = roots.reduce((sum, root) => sum + inside(root), 0);
element('summary').textContent = frames + (frames === 1 ? ' frame' : ' frames') +
  (two ? ', ' + (differences || 'no') + (differences > 1 ? ' differences' : ' difference') : '');
sides.forEach((side, s) => {
  makeDump(side, s);
  if (!side.broken) return;
  const note = document.createElement('a');
  note.className = 'error';
  note.textContent = (two ? side.name + ': ' : '') + 'broken at ' + side.broken.text;
  note.href = '#' + encodeURI(keyOf(side.broken.node));
  element('summary').after(note);
});
// Unfold only enough to fill the page.
let budget = 60;
for (const root of roots) root.open = true;
for (const level of [1, 2, 3]) {
  const visit = (node, depth) => {
    if (budget <= 0) return;
    if (depth === level && (!two || inside(node)) && node.name !== 'header' && list(node).length) {
      node.open = true;
      budget -= list(node).length;
    }
    if (depth >= level || !node.open) return;
    for (let i = 0; i < list(node).length && budget > 0; ++i) visit(childAt(node, i), depth + 1);
  };
  for (const root of roots) visit(root, 0);
}
drawTree();
search();
sides.forEach(drawLines);
addEventListener('resize', () => sides.forEach(drawLines));

// Nothing if the address is malformed.
function addressed() {
  try { return decodeURI(location.hash.slice(1)); } catch { return ''; }
}
function follow() {
  const parts = addressed().match(/^(?:(\d+):)?(.*)$/);
  if (!parts || (!parts[1] && !parts[2])) return;
  const among = parts[1] === undefined ? roots : roots.slice(Number(parts[1]), Number(parts[1]) + 1);
  for (const root of among) {
    let node = root;
    for (const name of steps(parts[2])) node = node && childOf(node, name);
    if (node) return select(node);
  }
}
addEventListener('hashchange', follow);
follow();
// What is wrong, or what has changed, is looked at first.
const wrong = sides.find(side => side.broken);
if (!selected && wrong) select(wrong.broken.node);
else if (!selected && two) step(1);

'use strict';
// The page of tarn schema --html: a drawing of the nesting, and a table of the selected type.

const data = JSON.parse(document.getElementById('data').textContent);
const element = id => document.getElementById(id);
element('drawing').innerHTML = data.drawing;
const drawing = element('drawing').querySelector('svg');
const nodes = new Map([...drawing.querySelectorAll('.node')].map(n => [n.dataset.name, n]));
const edges = [...drawing.querySelectorAll('.edge')];
const named = list => new Map(list.map(thing => [thing.name, thing]));
const records = named(data.schema.records), messages = named(data.schema.messages);
const bundles = named(data.schema.bundles), enumerations = named(data.schema.enumerations);
let chosen = null, wanted = '';

// All types that contain the named one or that it contains, directly or indirectly.
function relatives(name) {
  const all = new Set([name]);
  const follow = (from, to) => {
    const queue = [name];
    while (queue.length) {
      const here = queue.pop();
      for (const edge of edges) {
        if (edge.dataset[from] !== here) continue;
        if (!all.has(edge.dataset[to])) queue.push(edge.dataset[to]);
        all.add(edge.dataset[to]);
      }
    }
  };
  follow('from', 'to');
  follow('to', 'from');
  return all;
}

function light(name) {
  const lit = name ? relatives(name) : new Set();
  drawing.classList.toggle('quiet', Boolean(name));
  nodes.forEach((node, own) => node.classList.toggle('lit', lit.has(own)));
  for (const edge of edges) edge.classList.toggle('lit', lit.has(edge.dataset.from) && lit.has(edge.dataset.to));
}

function add(parent, tag, words, kind) {
  const made = document.createElement(tag);
  if (words !== undefined) made.textContent = words;
  if (kind) made.className = kind;
  parent.append(made);
  return made;
}

function link(parent, name, words) {
  const a = add(parent, 'a', words || name);
  a.href = '#' + name;
  // The link is replaced by what it leads to.
  a.onclick = event => {
    event.preventDefault();
    choose(name);
    element('table').focus({preventScroll: true});
  };
}

function table(head, rows, cells) {
  const made = add(element('table'), 'table');
  const titles = add(made, 'tr');
  for (const title of head) add(titles, 'th', title).scope = 'col';
  for (const row of rows) {
    const line = add(made, 'tr');
    line.dataset.name = row.name;
    if (wanted && matches(row)) line.className = 'hit';
    cells(line, row);
  }
}

const words = thing => [thing.name, thing.meaning || '', thing.kind || ''].join(' ').toLowerCase();
const matches = thing => words(thing).includes(wanted);
const numbers = ['offset', 'size', 'slot', 'wire'];

function show(name) {
  const panel = element('table');
  panel.replaceChildren();
  const record = records.get(name), message = messages.get(name);
  const bundle = bundles.get(name), enumeration = enumerations.get(name);
  if (!name) return showStart(panel);
  link(add(panel, 'p'), '', '\u2190 all');
  add(panel, 'h2', name);
  if (record) {
    add(panel, 'p', record.meaning);
    add(panel, 'p', 'base size ' + record.base_size + ', state area ' + record.state_width).append(' \u00b7 luid ');
    add(panel.lastChild, 'code', record.luid);
    table(['member', 'kind', ...numbers, 'meaning'], record.members, (line, m) => {
      add(line, 'td', m.name);
      const kind = add(line, 'td'), bare = m.kind.replace('[]', '');
      if (records.has(bare) || enumerations.has(bare)) link(kind, bare, m.kind.replace('lumo_tarn_', ''));
      else kind.textContent = m.kind + (m.role ? ', ' + m.role : '');
      for (const number of numbers) add(line, 'td', m[number] === undefined ? '' : String(m[number]), 'number');
      add(line, 'td', m.meaning);
    });
    const holders = edges.filter(e => e.dataset.to === name).map(e => e.dataset.from);
    const line = add(panel, 'p', 'contained in ');
    holders.forEach((holder, i) => { if (i) line.append(', '); link(line, holder); });
  } else if (message) {
    add(panel, 'p', 'message, luid ').append(message.luid);
    link(add(panel, 'p', 'payload '), message.payload);
  } else if (bundle) {
    add(panel, 'p', 'bundle, ' + 'short name ' + bundle.short);
    link(add(panel, 'p', 'message '), bundle.message);
    const controls = ['start', 'abort', 'commit'].map(c => ({name: c, luid: bundle[c]}));
    table(['control message', 'luid'], controls, (line, c) => {
      add(line, 'td', c.name);
      add(add(line, 'td'), 'code', c.luid);
    });
  } else if (enumeration) {
    add(panel, 'p', 'enumeration, luid ').append(enumeration.luid);
    table(['number', 'enumerator'], enumeration.enumerators.map((e, i) => ({name: e, i})), (line, e) => {
      add(line, 'td', String(e.i), 'number');
      add(line, 'td', e.name);
    });
  }
}

function showStart(panel) {
  add(panel, 'h2', 'Records');
  add(panel, 'p', 'Hover over a box to highlight what it contains and what contains it. Click it to see its members.');
  table(['name', 'members', 'meaning'], data.schema.records, (line, r) => {
    link(add(line, 'td'), r.name, r.name.replace('lumo_tarn_', ''));
    add(line, 'td', String(r.members.length), 'number');
    add(line, 'td', r.meaning);
  });
  const others = {Bundles: bundles, Messages: messages, Enumerations: enumerations};
  for (const [title, things] of Object.entries(others)) {
    add(panel, 'h2', title);
    const line = add(panel, 'p', '');
    [...things.keys()].forEach((name, i) => {
      if (i) line.append(', ');
      link(line, name, name.replace('lumo_tarn_', ''));
    });
  }
}

function choose(name) {
  chosen = name;
  nodes.forEach((node, own) => node.classList.toggle('selected', own === name));
  light(nodes.has(name) ? name : null);
  show(name);
  element('table').scrollTop = 0;
  const box = nodes.get(name);
  if (box) box.scrollIntoView({block: 'nearest', inline: 'nearest'});
  history.replaceState(null, '', '#' + (name || ''));
}

drawing.addEventListener('mouseover', event => {
  const node = event.target.closest('.node');
  light(node ? node.dataset.name : nodes.has(chosen) ? chosen : null);
});
drawing.addEventListener('mouseleave', () => light(nodes.has(chosen) ? chosen : null));
element('drawing').addEventListener('click', event => {
  const node = event.target.closest('.node');
  choose(node ? node.dataset.name : null);
});

element('search').addEventListener('input', () => {
  wanted = element('search').value.trim().toLowerCase();
  const found = [];
  for (const things of [bundles, messages, records]) {
    things.forEach((thing, name) => {
      const members = (thing.members || []).filter(matches).length;
      const hit = Boolean(wanted) && (matches(thing) || members > 0);
      if (hit) found.push(name);
      nodes.get(name).classList.toggle('hit', hit);
    });
  }
  element('found').textContent = wanted ? found.length + ' found' : '';
  show(chosen);
});
element('search').addEventListener('keydown', event => {
  const hits = [...nodes].filter(([, n]) => n.classList.contains('hit')).map(([name]) => name);
  if (event.key === 'Enter' && hits.length) choose(hits[(hits.indexOf(chosen) + 1) % hits.length]);
});

const dark = () => document.documentElement.classList.toggle('dark');
if (matchMedia('(prefers-color-scheme: dark)').matches) dark();
element('theme').addEventListener('click', dark);
element('summary').textContent = [bundles.size + ' bundles', messages.size + ' messages', records.size + ' records',
  enumerations.size + ' enumerations'].join(', ');
drawing.setAttribute('role', 'img');
drawing.setAttribute('aria-label', 'What contains what');

function follow() {
  let wantedName = '';
  try { wantedName = decodeURI(location.hash.slice(1)); } catch { /* a malformed address chooses nothing */ }
  choose(wantedName || null);
}
addEventListener('hashchange', follow);
follow();

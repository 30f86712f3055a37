'use strict';
// The page of a collector. Text from devices and from the store reaches the page as text nodes only. It shows a part of
// many devices, so that it stays fast with ten thousand; the search finds the others.

const element = id => document.getElementById(id);
const mostRows = 500, mostCompared = 20, refresh = 5000;
const state = {devices: [], now: 0, members: {}, order: 'state', descends: false, plot: null, zoom: null, events: [],
  base: null};

// ---- text

const units = [['d', 86400000], ['h', 3600000], ['min', 60000], ['s', 1000]];
// The two greatest units: "3 d 4 h", "5 min 7 s".
function durationText(time) {
  const i = units.findIndex(([, size]) => time >= size);
  if (i < 0) return '0 s';
  const count = Math.floor(time / units[i][1]), rest = i + 1 < units.length && Math.floor(time % units[i][1] / units[i + 1][1]);
  return count + ' ' + units[i][0] + (rest ? ' ' + rest + ' ' + units[i + 1][0] : '');
}
const timeText = time => new Date(time).toISOString().replace('T', ' ').replace(/\.\d+Z/, '');
function spanText(from, to) {
  if (to === null) return 'since ' + timeText(from);
  const [first, last] = [timeText(from), timeText(to)];
  if (first === last) return first;
  return first + ' \u2013 ' + (first.slice(0, 10) === last.slice(0, 10) ? last.slice(11) : last);
}
const sizeText = size => size < 10000 ? size + ' B' : size < 1e7 ? (size / 1e3).toFixed(0) + ' kB' : (size / 1e6).toFixed(0) + ' MB';
const countText = (count, what) => count + ' ' + what + (count === 1 ? '' : 's');

// An element with text or elements in it.
function made(tag, properties, ...content) {
  const node = Object.assign(document.createElement(tag), properties);
  node.append(...content);
  return node;
}

async function get(path, parameters = {}) {
  const answer = await fetch('data/' + path + '?' + new URLSearchParams(parameters));
  if (!answer.ok) throw new Error((await answer.text()).trim());
  return answer.json();
}

function say(id, text, className = '') {
  const node = element(id);
  node.className = className;
  if (node.textContent !== text) node.textContent = text;  // A screen reader does not read the same text again.
}

// Drawing rows again must not take the focus away.
function replaceRows(table, rows) {
  const all = () => [...element(table).querySelectorAll('tbody a, tbody input')];
  const focused = document.activeElement, same = () => all().filter(n => n.href === focused.href && n.value === focused.value);
  const at = same().indexOf(focused);
  element(table).querySelector('tbody').replaceChildren(...rows);
  if (at >= 0) same()[at]?.focus({preventScroll: true});
}

// What the address of the page says: the device, the member, the time and the rows.
const address = () => new URLSearchParams(location.hash.slice(1));
function setAddress(changes) {
  const parts = address();
  for (const [name, value] of Object.entries(changes)) {
    if (value) parts.set(name, value); else parts.delete(name);
  }
  history.replaceState(null, '', '#' + parts);
}
function hashOf(device) {
  const parts = address();
  parts.set('device', device);
  return '#' + parts;
}

// ---- all devices

const age = time => Math.max(state.now - time, 0);
// "silent for 5 s: no answer"
function stateText(d) {
  if (!d.gap) return 'answers';
  const [what, ...why] = d.gap.reason.split(': ');
  return [what + ' for ' + durationText(age(d.gap.from)), ...why].join(': ');
}
// "device-2" is before "device-10".
const {compare: compareText} = new Intl.Collator('en', {numeric: true});
const columns = [
  {name: 'device', title: 'Device', key: d => d.device, cell: d => [made('a', {href: hashOf(d.device), title: d.device}, d.device)]},
  {name: 'bundle', title: 'Bundle', key: d => d.bundle, cell: d => [d.bundle]},
  {name: 'state', title: 'State', key: d => d.gap ? '0' + d.gap.reason : '1',
    cell: d => [made('span', {title: stateText(d)}, stateText(d))]},
  {name: 'last', title: 'Last answer', key: d => d.answer ? age(d.answer.to) : Infinity,
    cell: d => [d.answer ? durationText(age(d.answer.to)) + ' ago' : 'never']},
  {name: 'same', title: 'Unchanged for', key: d => d.answer ? d.answer.to - d.answer.from : Infinity,
    cell: d => [d.answer ? durationText(d.answer.to - d.answer.from) : '']},
  {name: 'size', title: 'Size', key: d => d.answer ? -d.answer.size : 0,
    cell: d => [d.answer ? sizeText(d.answer.size) : '']},
];
// The first answer that is known is not new.
const isNew = d => d.answer && d.answer.number > 1;

function shownDevices() {
  const wanted = element('search').value.trim().toLowerCase(), silent = element('silent').checked;
  const column = columns.find(c => c.name === state.order), sign = state.descends ? -1 : 1;
  const order = (a, b) => typeof a === 'string' ? compareText(a, b) : a < b ? -1 : a > b ? 1 : 0;
  return state.devices
    .filter(d => (!silent || d.gap) && (d.device + ' ' + d.bundle).toLowerCase().includes(wanted))
    .map(d => [column.key(d), d])
    .sort(([a, x], [b, y]) => sign * order(a, b) || order(x.device, y.device) || order(x.bundle, y.bundle))
    .map(([, d]) => d);
}

function drawDevices() {
  const all = shownDevices(), selected = address().get('device');
  const rows = all.slice(0, mostRows).map(d => {
    const row = made('tr', {className: d.gap ? 'silent' : ''});
    columns.forEach(c => row.append(made('td', {className: c.name}, ...c.cell(d))));
    if (d.device === selected) row.setAttribute('aria-current', 'true');
    return row;
  });
  replaceRows('devices', rows);
  say('found', all.length > rows.length ? rows.length + ' of ' + all.length : String(all.length));
  element('devices').querySelectorAll('th').forEach((heading, i) => {
    const isOrder = columns[i].name === state.order;
    heading.setAttribute('aria-sort', !isOrder ? 'none' : state.descends ? 'descending' : 'ascending');
  });
}

function summarize() {
  const count = choose => new Set(state.devices.filter(choose).map(d => d.device)).size;
  const silent = count(d => d.gap);
  say('summary', countText(count(() => true), 'device') + ', ' +
    (silent ? silent + (silent === 1 ? ' does' : ' do') + ' not answer' : 'all answer') + ', ' +
    count(d => isNew(d) && age(d.answer.from) < 3600000) + ' with new answers in the last hour');
}

async function load() {
  try {
    const before = state.devices, {devices, now, store} = await get('devices');
    Object.assign(state, {devices, now});
    element('detail').textContent = store;
    summarize();
    drawDevices();
    const of = list => JSON.stringify(list.filter(d => d.device === address().get('device'))
      .map(d => [d.bundle, d.answer && d.answer.id, d.gap && d.gap.from]));
    if (before.length && of(before) !== of(devices) && !state.zoom) loadDevice();
  } catch (error) {
    say('summary', error.message, 'error');
  }
}

// ---- one device

let latest = 0;  // what was asked for last; answers to older requests are not shown
async function shown(work) {
  const number = ++latest;
  try {
    await work(() => number === latest);
    if (number === latest) element('device-error').textContent = '';
  } catch (error) {
    if (number === latest) element('device-error').textContent = error.message;
  }
}

function chosenTime() {
  if (state.zoom) return state.zoom;
  const range = Number(element('range').value), now = Date.now();
  return [range ? now - range : 0, now];
}

function openDevice(event) {
  const device = address().get('device'), before = element('name').textContent, wasOpen = !element('device').hidden;
  element('device').hidden = !device;
  document.querySelector('main').classList.toggle('open', Boolean(device));
  drawDevices();
  element('devices').querySelector('[aria-current]')?.scrollIntoView({block: 'nearest'});
  // The focus goes to a device that was chosen, and back to its row.
  if (event && device && !wasOpen) element('device').focus({preventScroll: true});
  if (!device && wasOpen) linkOf(before)?.focus();
  if (!device) {
    ++latest;  // Nothing is drawn where it has no size.
    return;
  }
  element('name').textContent = device;
  element('range').value = address().get('time') ?? '86400000';
  element('filter').value = address().get('rows') || '';
  fillMembers(device);
  state.base = state.zoom = null;
  loadDevice();
}

const linkOf = device => [...element('devices').querySelectorAll('tbody a')].find(a => a.textContent === device);

function fillMembers(device) {
  const wanted = address().get('member'), groups = [];
  for (const {bundle} of state.devices.filter(d => d.device === device)) {
    const byRecord = new Map();
    for (const [name, meaning] of state.members[bundle] || []) {
      const record = name.slice(0, name.indexOf('.'));
      if (!byRecord.has(record)) byRecord.set(record, made('optgroup', {label: bundle + ': ' + record}));
      const value = bundle + ' ' + name;
      byRecord.get(record).append(
        made('option', {value, title: meaning, selected: value === wanted}, name));
    }
    groups.push(...byRecord.values());
  }
  element('member').replaceChildren(...groups);
}

function loadDevice() {
  return shown(async isLatest => {
    const device = address().get('device'), [since, until] = chosenTime().map(Math.floor);
    const [bundle, member] = element('member').value.split(' ');
    const [found, values] = await Promise.all([
      get('history', {device, since, until}),
      member ? get('values', {device, bundle, member, since, until, filter: element('filter').value}) : null,
    ]);
    if (!isLatest()) return;
    drawPlot(values, since, until);
    state.events = found.events;
    element('history-note').textContent = found.total > found.events.length
      ? 'The newest ' + found.events.length + ' of ' + found.total : found.total ? '' : 'Nothing in this time';
    drawHistory();
    await compare(isLatest);
  });
}

// ---- values over time

const css = name => getComputedStyle(document.documentElement).getPropertyValue(name).trim();
// Hues that are far apart for neighbors.
const colorOf = i => 'hsl(' + (210 + i * 137.5) % 360 + ' 60% ' + (isDark() ? 68 : 38) + '%)';

function drawPlot(values, since, until) {
  if (state.plot) state.plot.destroy();
  state.plot = state.at = null;
  state.values = values && {...values, since, until};
  const {series = [], points = [], gaps = [], more = 0, answers = 0, plotted = 0} = values || {};
  element('whole').hidden = !state.zoom;
  const notes = [];
  if (!series.length) notes.push('No values in this time');
  if (more) notes.push('The first ' + series.length + ' of ' + (series.length + more) + ' rows');
  if (answers > plotted) notes.push(plotted + ' of ' + answers + ' answers; a shorter time shows more of them');
  if (series.length && !window.Dygraph) notes.push('Plots require the package libjs-dygraphs');
  state.note = notes.join('. ');
  element('plot').hidden = !series.length;
  drawLegend(null);
  if (!series.length || !window.Dygraph) return;
  // Not more time than there are values, unless a part of it was chosen.
  const first = state.zoom ? since : Math.max(since, Math.min(points[0][0], until - 60000));
  state.plot = new Dygraph(element('plot'), points.map(([time, ...numbers]) => [new Date(time), ...numbers]), {
    // Names of the plot's own, since a label could be any text.
    labels: ['time', ...series.map((_, i) => 'row ' + i)],
    colors: series.map((_, i) => colorOf(i)),
    dateWindow: [first, until],
    labelsUTC: true,
    legend: 'never',
    includeZero: false,
    drawPoints: points.length < 200,
    pointSize: 2,
    strokeWidth: 1.5,
    rightGap: 12,
    axisLineColor: css('--line'),
    gridLineColor: css('--line'),
    axes: {y: {axisLabelWidth: 70, axisLabelFormatter: value => value.toLocaleString('en-US', {maximumFractionDigits: 6}),
      valueRange: rangeOf(points)}},
    underlayCallback: (canvas, area, plot) => {
      canvas.fillStyle = css('--gone');
      for (const [from, to] of gaps) {
        const left = Math.max(plot.toDomXCoord(from), area.x), right = Math.min(plot.toDomXCoord(to), area.x + area.w);
        if (right > left) canvas.fillRect(left, area.y, Math.max(right - left, 1), area.h);
      }
    },
    highlightCallback: (event, time, all, row) => drawLegend(points[row]),
    unhighlightCallback: () => drawLegend(null),
    zoomCallback: (from, to) => {
      state.zoom = [from, to];
      loadDevice();
    },
  });
}

// The range of the numbers with some room; the plot's own would be empty for a line that does not move.
function rangeOf(points) {
  let [least, most] = [Infinity, -Infinity];
  for (const [, ...numbers] of points) {
    for (const number of numbers) {
      if (number === null) continue;
      least = Math.min(least, number);
      most = Math.max(most, number);
    }
  }
  const room = (most - least) / 20 || Math.max(Math.abs(most) / 20, 1);
  return [least - room, most + room];
}

// The rows with the values at a point, by default the last ones.
function drawLegend(point) {
  const {series = [], points = []} = state.values || {}, at = point || points[points.length - 1];
  element('legend').replaceChildren(...series.map((name, i) => {
    const swatch = made('span', {className: 'swatch'}), value = at[i + 1];
    swatch.style.background = colorOf(i);
    return made('li', {}, swatch, made('b', {}, value === null ? '-' : value.toLocaleString('en-US')), ' ', name || 'value');
  }));
  say('plot-note', point ? timeText(point[0]) : state.note);
}

// What the mouse does by pointing.
function choosePoint(by) {
  const {points} = state.values;
  state.at = Math.min(Math.max((state.at ?? points.length) + by, 0), points.length - 1);
  state.plot.setSelection(state.at);
  drawLegend(points[state.at]);
}

// ---- history

// The answer that an answer is compared with: the chosen one, or the one before it.
function baseOf(event) {
  const all = state.events.filter(e => e.kind === 'answer' && e.bundle === event.bundle);
  const chosen = all.find(e => e.id === state.base);
  if (chosen) return chosen.id === event.id ? null : chosen;
  return all.find(e => e.number === event.number - 1) || null;
}

function historyRow(event) {
  const isAnswer = event.kind === 'answer', base = isAnswer ? baseOf(event) : null;
  // Their roles, since a narrow table is drawn as lines.
  const row = made('tr', {className: isAnswer ? '' : 'silent', role: 'row'});
  const add = (className, ...content) => {
    row.append(made('td', {className, role: 'cell'}, ...content));
    return row.lastChild;
  };
  add('time', spanText(event.from, event.to));
  add('bundle', event.bundle);
  const what = add('what'), changes = add('changes'), choice = add('base');
  if (!isAnswer) {
    what.append('gap: ' + event.reason);
    return row;
  }
  what.append(made('a', {href: 'view?a=' + event.id}, 'answer ' + event.number),
    ', ' + sizeText(event.size) + ', ' + countText(event.requests, 'request'));
  const radio = made('input', {type: 'radio', name: 'base ' + event.bundle, value: event.id, checked: state.base === event.id});
  radio.setAttribute('aria-label', 'Compare the others with answer ' + event.number + ' of ' + event.bundle);
  choice.append(made('label', {}, radio, ' base'));
  if (base) {
    const [a, b] = base.number < event.number ? [base, event] : [event, base];
    const text = state.base ? 'difference from answer ' + base.number : 'difference';
    event.link = made('a', {href: 'view?a=' + a.id + '&b=' + b.id}, text);
    changes.append(event.link);
  }
  return row;
}

function drawHistory() {
  replaceRows('history', state.events.map(historyRow));
}

// Says what changed in the newest answers, one after the other.
async function compare(isLatest) {
  const compared = state.events.filter(e => e.kind === 'answer' && e.link).slice(0, mostCompared);
  for (const event of compared) {
    const {searchParams} = new URL(event.link.href), link = event.link;
    const {text, total} = await get('changes', {a: searchParams.get('a'), b: searchParams.get('b')})
      .catch(error => ({text: error.message, total: 1}));
    if (!isLatest()) return;
    link.textContent = (state.base ? link.textContent + ':\n' : '') + (total ? text.trim() : 'no change');
  }
}

// ---- actions

const isDark = () => document.documentElement.classList.contains('dark');
function setDark(wanted) {
  document.documentElement.classList.toggle('dark', wanted);
  if (state.values) drawPlot(state.values, state.values.since, state.values.until);
}
setDark(matchMedia('(prefers-color-scheme: dark)').matches);
element('theme').addEventListener('click', () => setDark(!isDark()));

element('devices').querySelector('thead tr').append(...columns.map(c => {
  const button = made('button', {type: 'button'}, c.title);
  button.addEventListener('click', () => {
    state.descends = state.order === c.name && !state.descends;
    state.order = c.name;
    drawDevices();
  });
  return made('th', {className: c.name, scope: 'col'}, button);
}));
element('search').addEventListener('input', drawDevices);
element('silent').addEventListener('change', drawDevices);
element('range').addEventListener('change', () => {
  state.zoom = null;
  setAddress({time: element('range').value});
  loadDevice();
});
element('member').addEventListener('change', () => {
  setAddress({member: element('member').value});
  loadDevice();
});
element('filter').addEventListener('change', () => {
  setAddress({rows: element('filter').value});
  loadDevice();
});
element('whole').addEventListener('click', () => {
  state.zoom = null;
  loadDevice();
});
element('close').addEventListener('click', () => {
  setAddress({device: ''});
  openDevice();
});
element('history').addEventListener('change', event => {
  state.base = Number(event.target.value);
  drawHistory();
  shown(compare);
});
element('devices').addEventListener('click', event => {
  const row = event.target.closest('tbody tr');
  if (row && !event.target.closest('a')) row.querySelector('a').click();
});
element('plot').addEventListener('keydown', event => {
  const by = {ArrowLeft: -1, ArrowRight: 1}[event.key];
  if (!by || !state.plot) return;
  event.preventDefault();
  choosePoint(by);
});
addEventListener('hashchange', openDevice);

// The device after or before the chosen one.
function step(by) {
  const links = [...element('devices').querySelectorAll('tbody a')], device = address().get('device');
  const names = [...new Set(links.map(a => a.textContent))], at = names.indexOf(device);
  if (!names.length) return;
  location.hash = hashOf(names[at < 0 ? 0 : (at + by + names.length) % names.length]);
}
document.addEventListener('keydown', event => {
  const {key, target} = event;
  if (event.ctrlKey || event.altKey || event.metaKey) return;
  if (key === 'Escape') {
    if (target === element('search') && target.value) {
      target.value = '';
      drawDevices();
    } else element('close').click();
  } else if (target.closest('input, select')) return;
  else if (key === '/') element('search').focus();
  else if (key === 'n' || key === 'p') step(key === 'n' ? 1 : -1);
  else return;
  event.preventDefault();
});

async function start() {
  // The legend is below the plot, as text.
  if (window.Dygraph) Dygraph.PLUGINS = Dygraph.PLUGINS.filter(plugin => plugin !== Dygraph.Plugins.Legend);
  state.members = await get('members').catch(() => ({}));
  await load();
  openDevice();
  for (;;) {
    await new Promise(done => setTimeout(done, refresh));
    if (!document.hidden) await load();
  }
}
start();

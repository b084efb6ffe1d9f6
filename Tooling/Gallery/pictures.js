'use strict';

const axes = [
    ['screen', 'Screen'], ['moment', 'Moment'], ['locale', 'Language'], ['size', 'Size'], ['textSize', 'Text size'], ['appearance', 'Appearance'],
];
const changeAxis = axes.length; // of items in the view of changes
const data = JSON.parse(document.getElementById('gallery').textContent);
const hasChanges = Array.isArray(data.changes);
const element = id => document.getElementById(id);

// --- What there is to see ---

function pictureOf(row) {
    return { values: row.slice(0, 6), file: row[7], tree: row[8], width: row[9], height: row[10], points: row[3].split('x').map(Number) };
}

function itemOf(change) {
    const before = change.before && pictureOf(change.before), after = change.after && pictureOf(change.after);
    const kind = !before ? 'new' : !after ? 'gone' : 'changed';
    const shown = after || before;
    return { ...shown, values: [...shown.values, kind], before, after, words: change.words, isChange: true };
}

const all = data.pictures.map(row => pictureOf(row));
const changes = hasChanges ? data.changes.map(itemOf) : [];
const views = { all: { items: all }, changes: { items: changes } };

// The values of each axis in the order in which they come first.
for (const view of Object.values(views)) {
    view.values = Array.from({ length: axes.length + 1 }, () => []);
    const known = view.values.map(() => new Set());
    for (const item of view.items)
        item.values.forEach((value, axis) => {
            if (known[axis].has(value)) return;
            known[axis].add(value);
            view.values[axis].push(value);
        });
}

let view = hasChanges ? views.changes : views.all;
const chosen = Array.from({ length: axes.length + 1 }, () => new Set()); // none of an axis: all
let marked = []; // at most two items
let shownItems = [];
let current = null; // the card that Tab comes to

const nameOf = item => `${item.values[0]}: ${item.values[1]}`;
const aboutOf = (item, separator = ' · ') => item.values.slice(2, 6).map(spoken).join(separator);

function spoken(value) {
    if (/^[\d.]+x[\d.]+$/.test(value)) return value.replace('x', ' × ');
    return /^(extra|accessibility)[A-Z]/.test(value) ? value.replace(/[A-Z]/g, letter => ' ' + letter.toLowerCase()) : value;
}

const plural = (count, one, many) => `${count.toLocaleString('en')} ${count === 1 ? one : many}`;

function make(tag, properties = {}, ...children) {
    const made = document.createElement(tag);
    for (const [name, value] of Object.entries(properties))
        name in made ? made[name] = value : made.setAttribute(name, value);
    made.append(...children);
    return made;
}

// --- Filters ---

function agrees(item, butFor) {
    return item.values.every((value, axis) => axis === butFor || !chosen[axis].size || chosen[axis].has(value));
}

function textMatches(item, words) {
    if (!words.length) return true;
    item.text ??= [...item.values, ...(item.words || [])].join(' ').toLowerCase();
    return words.every(word => item.text.includes(word));
}

function buildFilters() {
    const names = [...axes.map(([, name]) => name), 'Change'];
    const order = [changeAxis, 0, 2, 3, 4, 5, 1]; // moments are the most
    view.chips = [];
    element('axes').replaceChildren(...order.filter(axis => view.values[axis].length > 1).map(axis => {
        const chips = view.values[axis].map(value => {
            const box = make('input', { type: 'checkbox', checked: chosen[axis].has(value) });
            box.addEventListener('change', () => {
                box.checked ? chosen[axis].add(value) : chosen[axis].delete(value);
                apply();
            });
            const chip = make('label', { className: 'chip' }, box, make('span', { textContent: spoken(value) }));
            view.chips.push({ axis, value, chip });
            return chip;
        });
        return make('fieldset', {}, make('legend', { textContent: names[axis] }), make('div', { className: 'chips' }, ...chips));
    }));
}

function searchedWords() { return element('search').value.toLowerCase().split(/\s+/).filter(Boolean); }

function apply() {
    const words = searchedWords();
    const found = view.items.filter(item => textMatches(item, words));
    shownItems = found.filter(item => agrees(item));
    const isShown = new Set(shownItems);
    for (const item of view.items) item.card.hidden = !isShown.has(item);
    for (const group of view.groups) group.section.hidden = !group.items.some(item => isShown.has(item));
    // What would be left of each value, whatever else of its axis is chosen.
    const counts = view.values.map(() => new Map());
    chosen.forEach((_, axis) => {
        for (const item of found)
            if (agrees(item, axis)) counts[axis].set(item.values[axis], (counts[axis].get(item.values[axis]) || 0) + 1);
    });
    for (const { axis, value, chip } of view.chips) chip.classList.toggle('empty', !counts[axis].get(value));
    captionCards();
    if (!current || !isShown.has(current)) setCurrent(shownItems[0] || null);
    tellCount();
    remember();
}

function tellCount() {
    const things = view === views.changes ? ['change', 'changes'] : ['picture', 'pictures'];
    const total = view.items.length;
    element('count').textContent = shownItems.length === total
        ? plural(total, ...things)
        : `${shownItems.length.toLocaleString('en')} of ${plural(total, ...things)}`;
    const nothing = element('nothing');
    nothing.hidden = shownItems.length > 0;
    if (nothing.hidden) return;
    const isUnchanged = view === views.changes && total === 0;
    nothing.replaceChildren(
        make('b', { textContent: isUnchanged ? 'Nothing has changed' : 'No picture is like that' }),
        isUnchanged ? `All ${plural(all.length, 'picture is', 'pictures are')} as before.` : 'Choose less in the filters, or search for something else.');
}

// --- Cards ---

function imageOf(picture, name) {
    return make('img', { loading: 'lazy', decoding: 'async', alt: '', src: picture.file, width: picture.width, height: picture.height, title: name });
}

function cardOf(item) {
    const thumbHeight = 240, gap = 6;
    const picture = make('div', { className: 'picture' });
    let width = thumbHeight * item.width / item.height;
    if (item.isChange) {
        for (const [side, text] of [[item.before, 'not there before'], [item.after, 'gone']])
            picture.append(side ? imageOf(side, '') : make('div', { className: 'none', textContent: text }));
        width = Math.max(2 * width + gap, 300);
    } else {
        picture.append(imageOf(item, ''));
    }
    const mark = make('span', { className: 'mark', title: 'Mark to compare' });
    const card = make('div', { className: item.isChange ? 'card pair' : 'card', tabIndex: -1 }, picture, mark);
    card.setAttribute('role', 'option');
    card.setAttribute('aria-selected', 'false');
    card.setAttribute('aria-label', [nameOf(item), aboutOf(item, ', '), ...(item.words || [])].join(', '));
    card.style.setProperty('--width', `${Math.round(width)}px`);
    item.title = make('b');
    item.about = make('small');
    card.append(item.title, item.about);
    if (item.isChange) {
        const most = 3;
        const list = make('ul', {}, ...item.words.slice(0, most).map(word => make('li', { textContent: word })));
        if (item.words.length > most) list.append(make('li', { textContent: `and ${item.words.length - most} more` }));
        card.append(list);
    }
    card.addEventListener('click', event => event.target === mark ? toggleMark(item) : open(item));
    card.addEventListener('focus', () => setCurrent(item));
    item.card = card;
    return card;
}

// What all pictures in sight have in common is not said of each, nor what their group is called.
function captionCards() {
    const differs = [3, 4, 5].filter(axis => new Set(shownItems.map(item => item.values[axis])).size > 1);
    for (const item of shownItems) {
        item.title.textContent = item.values[1];
        if (item.isChange) item.title.append(make('span', { className: 'changed-badge', textContent: item.values[changeAxis] }));
        item.about.textContent = differs.map(axis => spoken(item.values[axis])).join(' · ');
    }
}

function buildCards() {
    view.groups = [];
    const groups = new Map();
    for (const item of view.items) {
        const name = `${item.values[0]} · ${item.values[2]}`;
        if (!groups.has(name)) {
            const cards = make('div', { className: 'cards', role: 'presentation' });
            const heading = make('h2', { textContent: name, role: 'presentation' });
            const section = make('div', { className: 'group', role: 'group', 'aria-label': name }, heading, cards);
            const group = { section, cards, items: [] };
            groups.set(name, group);
            view.groups.push(group);
        }
        const group = groups.get(name);
        group.items.push(item);
        group.cards.append(item.card || cardOf(item));
    }
    element('pictures').replaceChildren(...view.groups.map(group => group.section));
}

function setCurrent(item) {
    if (current?.card) current.card.tabIndex = -1;
    current = item;
    if (current?.card) current.card.tabIndex = 0;
}

function focusCard(item) {
    if (!item) return;
    setCurrent(item);
    item.card.focus();
    item.card.scrollIntoView({ block: 'nearest' });
}

// The card above or below, by where they stand.
function cardInNextRow(direction) {
    const here = current.card.getBoundingClientRect(), middle = here.left + here.width / 2;
    let row = null, best = null, bestDistance = Infinity;
    for (let i = shownItems.indexOf(current) + direction; i >= 0 && i < shownItems.length; i += direction) {
        const rect = shownItems[i].card.getBoundingClientRect();
        if (row === null && Math.abs(rect.top - here.top) < 2) continue;
        row ??= rect.top;
        if (Math.abs(rect.top - row) >= 2) break;
        const distance = Math.abs(rect.left + rect.width / 2 - middle);
        if (distance < bestDistance) [best, bestDistance] = [shownItems[i], distance];
    }
    return best;
}

function onGridKey(event) {
    if (!current || event.ctrlKey || event.metaKey || event.altKey) return;
    const at = shownItems.indexOf(current);
    const targets = {
        ArrowRight: () => shownItems[at + 1], ArrowLeft: () => shownItems[at - 1], ArrowDown: () => cardInNextRow(1),
        ArrowUp: () => cardInNextRow(-1), Home: () => shownItems[0], End: () => shownItems.at(-1),
    };
    if (targets[event.key]) focusCard(targets[event.key]());
    else if (event.key === 'Enter') open(current);
    else if (event.key === ' ') toggleMark(current);
    else return;
    event.preventDefault();
}

// --- Two that are marked ---

function toggleMark(item) {
    marked = marked.includes(item) ? marked.filter(each => each !== item) : [...marked.slice(-1), item];
    showMarks();
}

function showMarks() {
    for (const each of view.items) {
        const number = marked.indexOf(each);
        each.card.setAttribute('aria-selected', String(number >= 0));
        each.card.querySelector('.mark').dataset.number = number + 1;
    }
    element('tray').hidden = marked.length === 0;
    element('tray-text').textContent = marked.length === 1
        ? `${nameOf(marked[0])} is marked; mark another one`
        : marked.map(nameOf).join(' and ');
    element('tray-compare').disabled = marked.length < 2;
}

function compareMarked() {
    if (marked.length === 2) open(marked[0], marked[1], viewer.mode === 'one' ? 'beside' : viewer.mode);
}

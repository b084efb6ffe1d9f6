// --- The viewer ---

const viewer = { dialog: element('viewer'), item: null, other: null, mode: 'one', fits: true };

// Pictures that differ from it in one axis only.
function neighboursOf(item) {
    const result = [];
    for (const other of all) {
        const axesApart = [0, 1, 2, 3, 4, 5].filter(axis => other.values[axis] !== item.values[axis]);
        if (axesApart.length === 1 && axesApart[0] !== 0) result.push({ other, text: spoken(other.values[axesApart[0]]), axis: axesApart[0] });
    }
    return result;
}

function open(item, other = null, mode = null) {
    if (mode) viewer.mode = mode;
    else if (item.isChange && item.before && item.after && viewer.mode === 'one') viewer.mode = 'beside';
    if (!viewer.dialog.open) viewer.dialog.showModal();
    show(item, other);
    element('viewer-title').focus();
}

function show(item, other = null) {
    viewer.item = item;
    const choice = element('with');
    let options = [];
    if (item.isChange && !other) {
        viewer.left = item.before || item.after;
        viewer.right = item.before && item.after ? item.after : null;
        viewer.captions = item.before ? ['Before', 'After'] : ['New', ''];
        if (item.before && !item.after) viewer.captions = ['Gone', ''];
    } else {
        options = neighboursOf(item).sort((a, b) => b.axis - a.axis);
        if (other && !options.some(option => option.other === other)) options.unshift({ other, text: `${nameOf(other)}, ${aboutOf(other, ', ')}` });
        other ??= options[0]?.other || null;
        viewer.left = item;
        viewer.right = other;
        viewer.captions = [captionFor(item, other), other ? captionFor(other, item) : ''];
    }
    viewer.other = other;
    viewer.options = options;
    choice.replaceChildren(...options.map((option, index) => make('option', { value: index, textContent: option.text, selected: option.other === other })));
    element('viewer-title').textContent = nameOf(item);
    element('viewer-about').textContent = aboutOf(item);
    element('tree').href = item.tree;
    element('words').replaceChildren(...(item.words || []).map(word => make('li', { textContent: word })));
    const at = shownItems.indexOf(item);
    element('previous').disabled = at <= 0;
    element('next').disabled = at < 0 || at === shownItems.length - 1;
    setMode(viewer.mode);
}

// What a picture has for itself.
function captionFor(item, other) {
    if (!other) return '';
    return item.values.slice(0, 6).filter((value, axis) => value !== other.values[axis]).map(spoken).join(' · ') || nameOf(item);
}

function setMode(mode) {
    viewer.mode = mode;
    const isAlone = !viewer.right || mode === 'one';
    viewer.dialog.dataset.mode = isAlone ? 'one' : mode;
    for (const button of element('modes').children) {
        button.setAttribute('aria-pressed', String(button.dataset.mode === viewer.dialog.dataset.mode));
        button.disabled = !viewer.right && button.dataset.mode !== 'one';
    }
    element('with-label').hidden = isAlone || viewer.options.length === 0;
    // Alone, a changed picture is the new one.
    const first = isAlone && viewer.item.isChange ? viewer.item.after || viewer.item.before : viewer.left;
    viewer.first = first;
    fill(element('left'), first, isAlone ? '' : viewer.captions[0]);
    element('right').hidden = isAlone;
    if (!isAlone) fill(element('right'), viewer.right, viewer.captions[1]);
    sizePictures();
}

function fill(figure, picture, caption) {
    const image = figure.querySelector('img');
    figure.querySelector('figcaption').textContent = caption;
    if (image.getAttribute('src') !== picture.file) image.src = picture.file;
    image.width = picture.width;
    image.height = picture.height;
    image.alt = [nameOf(picture), aboutOf(picture, ', '), caption].filter(Boolean).join(', ');
}

// As large as the room allows, or a point of the screen as a point of the page.
function sizePictures() {
    const stage = element('stage'), mode = viewer.dialog.dataset.mode;
    const isAlone = mode === 'one', isSlider = mode === 'slider';
    const shown = isAlone ? [viewer.first] : [viewer.left, viewer.right];
    const gap = 24, padding = 48, caption = mode === 'beside' ? 30 : 0, largest = 2;
    const widths = shown.map(picture => picture.points[0]), heights = shown.map(picture => picture.points[1]);
    const width = isSlider ? widths[0] : widths.reduce((a, b) => a + b);
    const height = isSlider ? widths[0] * Math.max(...shown.map(({ points }) => points[1] / points[0])) : Math.max(...heights);
    const room = [stage.clientWidth - padding - gap * (isSlider ? 0 : shown.length - 1), stage.clientHeight - padding - caption];
    const factor = viewer.fits ? Math.min(largest, Math.max(0.05, Math.min(room[0] / width, room[1] / height))) : 1;
    ['left', 'right'].forEach((id, i) => {
        element(id).style.setProperty('--shown', `${(isSlider ? widths[0] : widths[i]) * factor}px`);
    });
}

function step(direction) {
    const next = shownItems[shownItems.indexOf(viewer.item) + direction];
    if (!next) return;
    setCurrent(next);
    show(next);
}

function setFit(fits) {
    viewer.fits = fits;
    element('fit').setAttribute('aria-pressed', String(fits));
    if (viewer.dialog.open) sizePictures();
}

function moveDivider(percent) {
    const at = Math.min(100, Math.max(0, percent));
    element('divider').value = at;
    element('stage').style.setProperty('--at', `${at}%`);
}

function onViewerKey(event) {
    if (event.ctrlKey || event.metaKey || event.altKey) return;
    const isOnValue = ['INPUT', 'SELECT'].includes(event.target.tagName);
    const modes = { 1: 'one', 2: 'beside', 3: 'slider' };
    if (modes[event.key] && (viewer.right || event.key === '1')) {
        setMode(modes[event.key]);
        if (event.key === '3') element('divider').focus();
    } else if (event.key.toLowerCase() === 'f') setFit(!viewer.fits);
    else if (event.key === 'ArrowRight' && !isOnValue) step(1);
    else if (event.key === 'ArrowLeft' && !isOnValue) step(-1);
    else return;
    event.preventDefault();
}

// --- The state stands in the address, so that it can be handed on ---

function remember() {
    const state = new URLSearchParams();
    if (hasChanges && view === views.all) state.set('view', 'all');
    chosen.forEach((values, axis) => {
        for (const value of values) state.append(axis === changeAxis ? 'change' : axes[axis][0], value);
    });
    if (element('search').value) state.set('search', element('search').value);
    const text = state.toString();
    try {
        history.replaceState(null, '', text ? `#${text}` : '#');
    } catch { /* a browser may forbid it for files; the page works without */ }
}

function recall() {
    const state = new URLSearchParams(location.hash.slice(1));
    if (state.get('view') === 'all') view = views.all;
    chosen.forEach((values, axis) => {
        values.clear();
        for (const value of state.getAll(axis === changeAxis ? 'change' : axes[axis][0]))
            if (view.values[axis].includes(value)) values.add(value);
    });
    element('search').value = state.get('search') || '';
}

function showView(next) {
    view = next;
    chosen[changeAxis].clear();
    marked = [];
    start();
}

function start() {
    element('views').hidden = !hasChanges;
    element('show-changes').setAttribute('aria-pressed', String(view === views.changes));
    element('show-all').setAttribute('aria-pressed', String(view === views.all));
    buildCards();
    buildFilters();
    showMarks();
    apply();
}

// --- Light and dark: the system's, or the other ---

function setUpAppearance() {
    const isDark = matchMedia('(prefers-color-scheme: dark)');
    const root = document.documentElement, button = element('appearance');
    const now = () => root.dataset.appearance || (isDark.matches ? 'dark' : 'light');
    const name = () => { button.textContent = now() === 'dark' ? 'Light page' : 'Dark page'; };
    button.addEventListener('click', () => {
        root.dataset.appearance = now() === 'dark' ? 'light' : 'dark';
        name();
    });
    isDark.addEventListener('change', name);
    name();
}

element('pictures').addEventListener('keydown', onGridKey);
element('search').addEventListener('input', apply);
element('axes').addEventListener('submit', event => event.preventDefault());
element('show-changes').addEventListener('click', () => showView(views.changes));
element('show-all').addEventListener('click', () => showView(views.all));
element('tray-compare').addEventListener('click', compareMarked);
element('tray-clear').addEventListener('click', () => {
    marked = [];
    showMarks();
    focusCard(current);
});
document.addEventListener('keydown', event => {
    if (viewer.dialog.open || ['INPUT', 'SELECT'].includes(event.target.tagName) && event.target.type !== 'checkbox') return;
    if (event.ctrlKey || event.metaKey || event.altKey) return;
    if (event.key === '/') element('search').focus();
    else if (event.key.toLowerCase() === 'c') compareMarked();
    else return;
    event.preventDefault();
});
viewer.dialog.addEventListener('keydown', onViewerKey);
viewer.dialog.addEventListener('close', () => focusCard(shownItems.includes(viewer.item) ? viewer.item : current));
element('modes').addEventListener('click', event => event.target.dataset.mode && setMode(event.target.dataset.mode));
element('with').addEventListener('change', event => show(viewer.item, viewer.options[event.target.value].other));
element('fit').addEventListener('click', () => setFit(!viewer.fits));
element('previous').addEventListener('click', () => step(-1));
element('next').addEventListener('click', () => step(1));
element('close').addEventListener('click', () => viewer.dialog.close());
element('divider').addEventListener('input', event => moveDivider(Number(event.target.value)));
const sides = document.querySelector('.sides');
const follow = event => {
    const rect = sides.getBoundingClientRect();
    moveDivider((event.clientX - rect.left) / rect.width * 100);
};
sides.addEventListener('pointerdown', event => {
    if (viewer.dialog.dataset.mode !== 'slider') return;
    sides.setPointerCapture(event.pointerId);
    follow(event);
    event.preventDefault();
});
sides.addEventListener('pointermove', event => sides.hasPointerCapture(event.pointerId) && follow(event));

addEventListener('resize', () => viewer.dialog.open && sizePictures());

setUpAppearance();
moveDivider(50);
if (matchMedia('(max-width: 860px)').matches) element('filters').open = false;
recall();
start();

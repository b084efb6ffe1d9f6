// The store page as plain elements. The page's address names the folder of the pictures: ?assets=FOLDER
const assets = new URLSearchParams(location.search).get('assets') + '/';

const tileCount = 21;
const spacing = 16;
const shelves = [
    { height: 220, inset: 0, aspect: 1.5, title: "It's never been easier to look professional",
      subtitle: 'All the templates. All the fonts. Graphics galore.' },
    { height: 315, inset: 25, aspect: 0.8, title: 'Upload brand assets',
      subtitle: 'Add your logos, fonts and color palettes to use within your projects.' },
    { height: 290, inset: 40, aspect: 0.75, title: 'Get full access to all templates',
      subtitle: 'Design on the go with professionally designed templates, updated daily.' },
    { height: 336, inset: 50, aspect: 0.8, title: 'Print with PDF export',
      subtitle: 'Export PDFs for high-quality printing of posters, cards, stationery and more.' },
    { height: 236, inset: 50, aspect: 1.2, title: 'Speedy layout collections',
      subtitle: 'Create consistent designs in seconds with pre-designed themed layouts.' },
    { height: 331, inset: 75, aspect: 2.0, title: 'Create with premium fonts and graphics',
      subtitle: 'Unlimited access to 60k+ exclusive graphics and 500+ curated fonts.' },
    { height: 280, inset: 40, aspect: 1.0, title: 'Design with editable shapes',
      subtitle: 'Pro users have access to editable vector shapes to use within projects.' },
    { height: 395, inset: 25, aspect: 0.6, title: 'Get inspired with videos and images',
      subtitle: 'Exclusive access to stock videos and libraries with millions of images.' },
];
for (const shelf of shelves) {
    shelf.tileHeight = shelf.height - 119;
    shelf.tileWidth = Math.floor(shelf.tileHeight * shelf.aspect);
    shelf.overhang = 375 - (2 * spacing + tileCount * shelf.tileWidth + (tileCount - 1) * spacing);
}

const tileHtml = (shelf, i) => `<img src="${assets}tile_${i}.png" width=${shelf.tileWidth} height=${shelf.tileHeight}>`;
const shelfHtml = (shelf, i) => `
    <section class="shelf" style="height:${shelf.height + shelf.inset}px">
        <div class="strip" style="height:${shelf.tileHeight}px"><div class="row">${tileHtml(shelf, i).repeat(tileCount)}</div></div>
        <h2>${shelf.title}</h2>
        <p>${shelf.subtitle}</p>
    </section>`;

const page = document.createElement('div');
page.className = 'store';
page.innerHTML = `
    <div class="list">${shelves.map(shelfHtml).join('')}</div>
    <button class="bar">Choose Your Plan</button>
    <img class="close-store" src="${assets}close.png">`;
document.body.append(page);

const list = page.querySelector('.list');
const rows = [...page.querySelectorAll('.row')];
const largestOffset = list.scrollHeight - list.clientHeight;
let drifts = -1;
let frame = 0;
let offset = 0;
let step = 20;

// Every other strip comes from its end.
function drift() {
    ++drifts;
    rows.forEach((row, i) => {
        const { overhang } = shelves[i];
        const x = i % 2 ? Math.min(0, overhang + 5 * drifts) : Math.max(overhang, -5 * drifts);
        row.style.transform = `translateX(${x}px)`;
    });
}

// To the end and back, 20 points a frame, while the strips drift at every sixth frame.
function scrollOn() {
    offset += step;
    if (offset > largestOffset || offset < 0) {
        step = -step;
        offset += 2 * step;
    }
    if (frame++ % 6 === 5) drift();
    list.scrollTop = offset;
}

let isScrolling = false;
function scrollEveryFrame() {
    if (!isScrolling) return;
    scrollOn();
    requestAnimationFrame(scrollEveryFrame);
}

drift();

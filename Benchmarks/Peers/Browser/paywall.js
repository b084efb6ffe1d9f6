// The paywall as plain elements. The page's address names the folder of the pictures: ?assets=FOLDER
const query = new URLSearchParams(location.search);
const assets = query.get('assets') + '/';

const pages = [
    { image: 'header_a.png', title: 'Endless premium templates, updated daily.' },
    { image: 'header_b.png', title: 'Thousands of photos, videos, graphics and fonts.' },
    { image: 'header_c.png', title: 'Remove photo backgrounds with one tap.' },
    { image: 'header_d.png', title: 'Grow your business with Custom Domains and Link in Bio.' },
];
const plans = [
    { title: 'Annually', compare: '$143.88', price: '$99.99', rest: ' per year ($8.33/month).', badge: 'Save 45%', trial: true },
    { title: 'Monthly', compare: '', price: '$14.99', rest: ' per month', badge: '', trial: false },
];

const buyText = plan => plan.trial ? 'Start Your Free Trial' : 'Subscribe Now';
const disclaimer = plan => plan.trial
    ? 'Cancel within 7 days, and you won’t be charged. Payment will be made automatically after the trial ends.'
    : 'Payment will be made immediately.';

// Pages but the first get their picture a second after the screen has opened.
const carouselHtml = () => `
    <div class="carousel">
        <div class="pages">${pages.map((page, i) => `<img ${i ? 'data-' : ''}src="${assets + page.image}">`).join('')}</div>
        <h1>${pages[0].title}</h1>
        <div class="dots">${pages.map((_, i) => `<button class="${i ? '' : 'on'}"><i></i></button>`).join('')}</div>
    </div>`;

const cardHtml = (plan, isSelected) => `
    <button class="card${isSelected ? ' on' : ''}">
        <div class="texts">
            <div class="title"><span>${plan.title}</span>${plan.trial ? '<span class="capsule">7 Day Free Trial</span>' : ''}</div>
            <div class="price">${plan.compare ? `<b><s>${plan.compare}</s></b> ` : ''}<b>${plan.price}</b>${plan.rest}</div>
        </div>
        <div class="radio"></div>
        ${plan.badge ? `<span class="badge">${plan.badge}</span>` : ''}
    </button>`;

const paywallHtml = () => `
    <div class="scroll"><div class="column">
        ${carouselHtml()}
        <img class="logo" src="${assets}logo.png">
        <button class="compare"><img class="diamond" src="${assets}diamond.png">Compare Plans: Free vs Pro<img class="chevron" src="${assets}chevron.png"></button>
        <div class="plans">${plans.map((plan, i) => cardHtml(plan, i === 0)).join('')}</div>
        <button class="buy">${buyText(plans[0])}</button>
        <div class="disclaimer">${disclaimer(plans[0])}</div>
        <div class="links"><button>Terms of Service</button><button>Privacy Policy</button><button>Restore Purchases</button></div>
    </div></div>
    <img class="gradient" src="${assets}terms_gradient.png">
    <button class="close"><img src="${assets}close.png"></button>`;

function connectPlans(root) {
    const cards = [...root.querySelectorAll('.card')];
    const buy = root.querySelector('.buy');
    const below = root.querySelector('.disclaimer');
    cards.forEach((card, i) => card.addEventListener('click', () => {
        cards.forEach((other, j) => other.classList.toggle('on', i === j));
        buy.textContent = buyText(plans[i]);
        below.textContent = disclaimer(plans[i]);
        root.dataset.selected = i;
    }));
}

function runCarousel(root) {
    const strip = root.querySelector('.pages');
    const title = root.querySelector('h1');
    const dots = [...root.querySelectorAll('.dots button')];
    let current = 0;
    setTimeout(() => root.querySelectorAll('[data-src]').forEach(image => image.src = image.dataset.src), 1000);
    setInterval(() => {
        current = (current + 1) % pages.length;
        strip.style.transform = `translateX(${-375 * current}px)`;
        dots.forEach((dot, i) => dot.classList.toggle('on', i === current));
        title.style.opacity = 0;
        setTimeout(() => {
            title.textContent = pages[current].title;
            title.style.opacity = 1;
        }, 1000);
    }, 5000);
}

function makePaywall(carouselRuns) {
    const root = document.createElement('div');
    root.className = 'paywall';
    root.innerHTML = paywallHtml();
    connectPlans(root);
    if (carouselRuns) runCarousel(root);
    return root;
}

// Holds once every picture inside the element is decoded.
const decoded = element => Promise.all([...element.querySelectorAll('img[src]')].map(image => image.decode().catch(() => 0)));

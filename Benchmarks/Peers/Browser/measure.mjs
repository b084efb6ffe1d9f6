// The paywall and the store page as a host would show them in an embedded browser.
// usage: node measure.mjs MODE ASSETS [PNG|SECONDS]
import path from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { Browser, sleep } from './browser.mjs';
import { FrameByFrame } from './frames.mjs';
import { cpu_ms, memory, processTree } from './processes.mjs';
import { summary } from './series.mjs';

const [mode, assets, last] = process.argv.slice(2);

function addressOf(file, parameters = {}) {
    const address = pathToFileURL(path.join(path.dirname(fileURLToPath(import.meta.url)), file));
    address.search = new URLSearchParams({ assets: pathToFileURL(path.resolve(assets)).href, ...parameters });
    return address.href;
}

// From just before the start of the browser to its first full frame, with a fresh profile. Frames come at 60 a second, so up to two
// periods of waiting are in it.
async function first() {
    const browser = new Browser(addressOf('paywall.html'));
    const page = await browser.firstPage();
    await page.waitFor(`typeof painted === 'object'`);
    const first_ms = await page.evaluate('painted') - browser.startedAt_ms;
    const used_ms = cpu_ms(processTree(browser.pid));
    await sleep(500);
    const report = { first_ms, cpu_ms: used_ms, ...memory(processTree(browser.pid)) };
    await browser.close();
    return report;
}

async function idle() {
    const browser = new Browser(addressOf('paywall.html', { carousel: 'running' }));
    await browser.firstPage();
    await sleep(6000);
    const processes = processTree(browser.pid);
    const before_ms = cpu_ms(processes);
    const start_ms = performance.now();
    await sleep(Number(last ?? 60) * 1000);
    const report = { cpu_s_per_min: (cpu_ms(processes) - before_ms) / (performance.now() - start_ms) * 60, ...memory(processes) };
    await browser.close();
    return report;
}

const openPaywall = `
    document.querySelector('#host').style.display = 'none';
    window.shown = makePaywall(false);
    document.body.append(shown);`;

// A host's document is up; the paywall is added to it by a script. The times have the DevTools' messages in them.
async function warm() {
    const frames = await FrameByFrame.open(addressOf('host.html'));
    const { page } = frames;
    const before = memory(frames.processes);
    const opened = await frames.measure(async () => {
        let isDecoded = false;
        const decoding = page.evaluate(`${openPaywall} decoded(shown).then(() => 1)`).then(() => isDecoded = true);
        while (!isDecoded) await frames.frame();
        await decoding;
    });
    await frames.frame();
    const after = memory(frames.processes);
    if (last) await frames.picture(last);

    const again = [];
    for (let i = 0; i < 60; ++i) {
        await page.evaluate(`shown.remove(); document.querySelector('#host').style.display = ''; 0`);
        await frames.settle(2);
        again.push((await frames.measure(() => page.evaluate(`${openPaywall} 0`))).wall_ms);
    }
    await frames.browser.close();
    return {
        warm_first_ms: opened.wall_ms, again: summary(again),
        added_pss_kb: after.pss_kb - before.pss_kb, added_priv_kb: after.priv_kb - before.priv_kb,
    };
}

async function click(page, [x, y]) {
    const at = { x, y, button: 'left', clickCount: 1 };
    const press = page.send('Input.dispatchMouseEvent', { type: 'mousePressed', ...at });
    await page.send('Input.dispatchMouseEvent', { type: 'mouseReleased', ...at });
    await press;
}

async function tap() {
    const frames = await FrameByFrame.open(addressOf('host.html'));
    const { page } = frames;
    await page.evaluate(`${openPaywall} 0`);
    await frames.settle();
    const cards = await page.evaluate(`[...document.querySelectorAll('.card')].map(card => {
        const box = card.getBoundingClientRect();
        return [box.x + 100, box.y + box.height / 2];
    })`);

    const taps = [];
    for (let i = 0; i < 200; ++i) {
        const card = i % 2 === 0 ? 1 : 0;
        const { cpu_ms } = await frames.measure(() => click(page, cards[card]));
        if (await page.evaluate('Number(shown.dataset.selected)') !== card) throw new Error('the tap has not selected its plan');
        if (i >= 20) taps.push(cpu_ms);
        await frames.frame();
    }
    await click(page, cards[1]);
    await frames.frame();
    if (last) await frames.picture(last);

    const repaints = [];
    for (let i = 0; i < 40; ++i) {
        await page.evaluate(`shown.style.visibility = 'hidden'; 0`);
        await frames.frame();
        repaints.push((await frames.measure(() => page.evaluate(`shown.style.visibility = ''; 0`))).cpu_ms);
    }
    await frames.browser.close();
    return { tap_cpu_ms: summary(taps), full_repaint_ms: summary(repaints) };
}

async function store() {
    const frames = await FrameByFrame.open(addressOf('store.html'));
    const { page } = frames;
    await page.evaluate('isScrolling = true; scrollEveryFrame()');
    await frames.settle(100);
    const scrolled = [];
    for (let i = 0; i < 300; ++i) {
        scrolled.push((await frames.measure()).cpu_ms);
        if (last && i === 40) await frames.picture(last);
    }
    await page.evaluate('isScrolling = false');
    await frames.settle(2);

    const drifted = [];
    for (let i = 0; i < 60; ++i) drifted.push((await frames.measure(() => page.evaluate('drift()'))).cpu_ms);
    const report = { frame_cpu_ms: summary(scrolled), strips_only_cpu_ms: summary(drifted), ...memory(frames.processes) };
    await frames.browser.close();
    return report;
}

const modes = { first, warm, tap, store, idle };
if (!modes[mode] || !assets) {
    console.error(`usage: node measure.mjs ${Object.keys(modes).join('|')} ASSETS [PNG|SECONDS]`);
    process.exit(2);
}
console.log(JSON.stringify(await modes[mode]()));
process.exit(0);

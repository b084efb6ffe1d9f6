// A page that makes a frame only when one is asked for.
import fs from 'node:fs';
import { performance } from 'node:perf_hooks';
import { Browser, sleep } from './browser.mjs';
import { cpu_ms, processTree } from './processes.mjs';

const switches = [
    '--enable-begin-frame-control', '--run-all-compositor-stages-before-draw', '--disable-new-content-rendering-timeout',
    '--disable-threaded-animation', '--disable-threaded-scrolling', '--disable-checker-imaging', '--disable-image-animation-resync',
];
const interval_ms = 1000 / 60;

export class FrameByFrame {
    #ticks = 1e6;

    static async open(address) {
        const frames = new FrameByFrame();
        frames.browser = new Browser('about:blank', switches);
        const { targetId } = await frames.browser.send('Target.createTarget',
            { url: 'about:blank', width: 375, height: 800, enableBeginFrameControl: true });
        frames.page = await frames.browser.attach(targetId);
        await frames.page.send('Page.enable');
        await frames.#load(address);
        frames.processes = processTree(frames.browser.pid);
        return frames;
    }

    async #load(address) {
        let isLoaded = false;
        this.browser.on('Page.loadEventFired', () => isLoaded = true);
        await this.page.send('Page.navigate', { url: address });
        while (!isLoaded) {
            await this.frame();
            await sleep(1);
        }
        await this.settle();
    }

    frame(options = {}) {
        this.#ticks += interval_ms;
        return this.page.send('HeadlessExperimental.beginFrame', { frameTimeTicks: this.#ticks, interval: interval_ms, ...options });
    }

    async settle(frames = 30) {
        for (let i = 0; i < frames; ++i) await this.frame();
    }

    // What the work and then a frame cost: the time that passes and the processor time of all processes.
    async measure(work = () => {}) {
        const cpuBefore_ms = cpu_ms(this.processes);
        const start_ms = performance.now();
        await work();
        await this.frame();
        return { wall_ms: performance.now() - start_ms, cpu_ms: cpu_ms(this.processes) - cpuBefore_ms };
    }

    async picture(file) {
        const { screenshotData } = await this.frame({ screenshot: { format: 'png' } });
        fs.writeFileSync(file, Buffer.from(screenshotData, 'base64'));
    }
}

// A browser without a display, driven over the pipe of its DevTools.
import { spawn } from 'node:child_process';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';

const program = 'chromium-headless-shell';
// Pixels are made by the processor, as in the other peers; nothing goes on beside the page.
const switches = [
    '--headless', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--no-default-browser-check',
    '--disable-background-networking', '--disable-component-update', '--disable-sync', '--disable-extensions',
    '--disable-default-apps', '--hide-scrollbars', '--mute-audio', '--force-device-scale-factor=2',
    '--allow-file-access-from-files', '--remote-debugging-pipe', '--window-size=375,800',
];

export const sleep = duration_ms => new Promise(resolve => setTimeout(resolve, duration_ms));

export class Browser {
    #process;
    #profile = fs.mkdtempSync(path.join(os.tmpdir(), 'peer-'));
    #received = '';
    #lastId = 0;
    #answers = new Map();
    #listeners = new Map();

    // With a fresh profile. Times of the page's clock can be compared with startedAt_ms.
    constructor(address, moreSwitches = []) {
        this.startedAt_ms = Date.now();
        this.#process = spawn(program, [...switches, `--user-data-dir=${this.#profile}`, ...moreSwitches, address],
            { stdio: ['ignore', 'ignore', 'ignore', 'pipe', 'pipe'], detached: true });
        this.#process.on('error', error => { throw error; });
        process.on('exit', () => this.#remove());
        this.#process.stdio[4].setEncoding('utf8').on('data', text => this.#receive(text));
    }

    get pid() { return this.#process.pid; }

    on(event, listener) { this.#listeners.set(event, listener); }

    send(method, params = {}, sessionId = undefined) {
        const id = ++this.#lastId;
        this.#process.stdio[3].write(JSON.stringify({ id, method, params, sessionId }) + '\0');
        return new Promise((resolve, reject) => this.#answers.set(id, { resolve, reject }));
    }

    #receive(text) {
        const messages = (this.#received + text).split('\0');
        this.#received = messages.pop();
        for (const message of messages.map(JSON.parse)) {
            if (!message.id) {
                this.#listeners.get(message.method)?.(message.params);
                continue;
            }
            const { resolve, reject } = this.#answers.get(message.id);
            this.#answers.delete(message.id);
            message.error ? reject(new Error(message.error.message)) : resolve(message.result);
        }
    }

    // The page that the browser has opened by itself.
    async firstPage() {
        for (;;) {
            const { targetInfos } = await this.send('Target.getTargets');
            const target = targetInfos.find(info => info.type === 'page');
            if (target) return this.attach(target.targetId);
            await sleep(2);
        }
    }

    async attach(targetId) {
        const { sessionId } = await this.send('Target.attachToTarget', { targetId, flatten: true });
        return new Page((method, params) => this.send(method, params, sessionId));
    }

    async close() {
        const exit = new Promise(resolve => this.#process.on('exit', resolve));
        this.send('Browser.close').catch(() => {});
        await Promise.race([exit, sleep(3000)]);
    }

    // Whatever has happened, neither a process nor the profile stays behind.
    #remove() {
        try { process.kill(-this.pid, 'SIGKILL'); } catch { /* all of its processes have ended */ }
        fs.rmSync(this.#profile, { recursive: true, force: true, maxRetries: 5 });
    }
}

export class Page {
    constructor(send) { this.send = send; }

    // The value of a script's expression, once its promise holds.
    async evaluate(expression) {
        const { result, exceptionDetails } = await this.send('Runtime.evaluate', { expression, awaitPromise: true, returnByValue: true });
        if (exceptionDetails) throw new Error(exceptionDetails.exception?.description ?? exceptionDetails.text);
        return result.value;
    }

    async waitFor(expression) {
        while (!await this.evaluate(expression).catch(() => false)) await sleep(2);
    }
}

// What a process and everything that it has started cost, as /proc tells.
import fs from 'node:fs';

const read = file => { try { return fs.readFileSync(file, 'latin1'); } catch { return ''; } };
const list = folder => { try { return fs.readdirSync(folder); } catch { return []; } };

const parentOf = pid => {
    const line = read(`/proc/${pid}/stat`);
    return line.slice(line.lastIndexOf(')') + 2).split(' ')[1];
};

// The process with this number and all that descend from it.
export function processTree(root) {
    const children = new Map();
    for (const pid of list('/proc').filter(name => /^\d+$/.test(name))) {
        const parent = parentOf(pid);
        children.set(parent, [...children.get(parent) ?? [], pid]);
    }
    const found = [String(root)];
    for (const pid of found) found.push(...children.get(pid) ?? []);
    return found;
}

// The processor time of all their threads, in milliseconds.
export function cpu_ms(pids) {
    let total_ns = 0;
    for (const pid of pids)
        for (const thread of list(`/proc/${pid}/task`))
            total_ns += Number(read(`/proc/${pid}/task/${thread}/schedstat`).split(' ')[0]);
    return total_ns / 1e6;
}

// Sums. Shared pages are divided among the processes only in pss_kb.
export function memory(pids) {
    const sums = { hwm_kb: 0, rss_kb: 0, pss_kb: 0, priv_kb: 0 };
    const keys = { hwm_kb: 'VmHWM', rss_kb: 'Rss', pss_kb: 'Pss', priv_kb: 'Private_Dirty' };
    for (const pid of pids) {
        const lines = read(`/proc/${pid}/smaps_rollup`) + read(`/proc/${pid}/status`);
        for (const [name, key] of Object.entries(keys)) sums[name] += Number(new RegExp(`^${key}:\\s+(\\d+)`, 'm').exec(lines)?.[1] ?? 0);
    }
    return sums;
}

// The same summary that the other peers give of many readings.
export function summary(readings) {
    const sorted = [...readings].sort((a, b) => a - b);
    const quantile = share => sorted[Math.min(sorted.length - 1, Math.floor(share * sorted.length))];
    const mean = sorted.reduce((sum, reading) => sum + reading, 0) / sorted.length;
    return { n: sorted.length, min: quantile(0), p50: quantile(0.5), p99: quantile(0.99), max: quantile(1), mean };
}

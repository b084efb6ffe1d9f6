#include "Platform/RunLoop/WorkQueue.hpp"

#include <algorithm>
#include <tuple>
#include <utility>

namespace proupsells::runloop {

bool WorkQueue::runsAfter(const Pointer& one, const Pointer& other) {
    return std::tie(one->m_due_s, one->m_sequence) > std::tie(other->m_due_s, other->m_sequence);
}

void WorkQueue::push(Pointer timer) {
    if (m_heap.size() >= m_sizeAtNextSweep) dropInvalidated();
    timer->m_sequence = m_nextSequence++;
    m_heap.push_back(std::move(timer));
    std::push_heap(m_heap.begin(), m_heap.end(), runsAfter);
}

const Timer* WorkQueue::first() {
    while (!m_heap.empty() && !m_heap.front()->isValid()) pop();
    return m_heap.empty() ? nullptr : m_heap.front().get();
}

std::size_t WorkQueue::validCount() const {
    return std::size_t(std::count_if(m_heap.begin(), m_heap.end(), [](const Pointer& timer) { return timer->isValid(); }));
}

std::shared_ptr<Timer> WorkQueue::pop() {
    std::pop_heap(m_heap.begin(), m_heap.end(), runsAfter);
    Pointer timer = std::move(m_heap.back());
    m_heap.pop_back();
    return timer;
}

// Timers that are scheduled and invalidated long before they are due would otherwise pile up.
void WorkQueue::dropInvalidated() {
    std::erase_if(m_heap, [](const Pointer& timer) { return !timer->isValid(); });
    std::make_heap(m_heap.begin(), m_heap.end(), runsAfter);
    m_sizeAtNextSweep = std::max<std::size_t>(64, 2 * m_heap.size());
}

} // namespace proupsells::runloop

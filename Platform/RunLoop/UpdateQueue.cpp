#include "Platform/RunLoop/UpdateQueue.hpp"

#include <algorithm>

namespace proupsells::runloop {

namespace {

bool isSameClient(const std::weak_ptr<UpdateClient>& one, const std::weak_ptr<UpdateClient>& other) {
    return !one.owner_before(other) && !other.owner_before(one);
}

} // namespace

bool UpdateQueue::add(const std::weak_ptr<UpdateClient>& client, double due_s) {
    if (client.expired()) return false;
    for (Request& request : m_requests) {
        if (!isSameClient(request.client, client)) continue;
        // A late turn on a real clock may ask before the moment of an earlier request has come.
        request.due_s = std::min(request.due_s, due_s);
        return false;
    }
    m_requests.push_back({client, due_s});
    return true;
}

std::optional<double> UpdateQueue::earliestDue_s() {
    std::optional<double> earliest_s;
    std::erase_if(m_requests, [](const Request& request) { return request.client.expired(); });
    for (const Request& request : m_requests) earliest_s = std::min(earliest_s.value_or(request.due_s), request.due_s);
    return earliest_s;
}

std::shared_ptr<UpdateClient> UpdateQueue::takeDue(double moment_s) {
    for (auto request = m_requests.begin(); request != m_requests.end();) {
        if (request->due_s > moment_s) {
            ++request;
            continue;
        }
        auto client = request->client.lock();
        request = m_requests.erase(request);
        if (client) return client;
    }
    return nullptr;
}

} // namespace proupsells::runloop

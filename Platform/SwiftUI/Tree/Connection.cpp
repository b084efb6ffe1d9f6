#include "Platform/SwiftUI/Tree/Connection.hpp"

namespace proupsells::swiftui {

// Stands between a connection and its copies. Leading it elsewhere leads all of them there.
struct Connection::Relay final : Target {
    explicit Relay(std::shared_ptr<Target> next) : next(std::move(next)) { m_isRelay = true; }

    std::shared_ptr<Target> next;
};

Connection& Connection::operator=(const Connection& other) {
    if (this != &other) *this = Connection(other);
    return *this;
}

Connection& Connection::operator=(Connection&& other) noexcept {
    if (this == &other) return *this;
    if (s_isTakingOver) other.takeCopiesOf(*this);
    m_target = std::move(other.m_target);
    m_relay = std::move(other.m_relay);
    return *this;
}

std::shared_ptr<Connection::Target> Connection::target() const {
    const std::shared_ptr<Target>* end = &m_target;
    while (*end && (*end)->m_isRelay) end = &static_cast<const Relay&>(**end).next;
    return *end;
}

std::shared_ptr<Connection::Target> Connection::relay() const {
    if (!m_relay) m_relay = std::make_shared<Relay>(m_target);
    return m_relay;
}

void Connection::takeCopiesOf(const Connection& older) const {
    if (!older.m_relay) return;
    if (m_relay) m_relay->next = older.m_relay;
    m_relay = std::move(older.m_relay);
    // The newer one may be a copy of the older one. Then the relay must not be led in a circle.
    if (!leadsTo(*m_relay)) m_relay->next = m_target;
}

bool Connection::leadsTo(const Target& relay) const {
    const Target* end = m_target.get();
    while (end && end->m_isRelay && end != &relay) end = static_cast<const Relay*>(end)->next.get();
    return end == &relay;
}

} // namespace proupsells::swiftui

#include "Platform/Foundation/LanguageChanges.hpp"

namespace proupsells::foundation {

namespace {

std::uint64_t changeCount = 0;

} // namespace

std::uint64_t LanguageChanges::count() { return changeCount; }

const combine::PassthroughSubject<std::uint64_t>& LanguageChanges::publisher() {
    static const combine::PassthroughSubject<std::uint64_t> subject;
    return subject;
}

void LanguageChanges::add() { publisher().send(++changeCount); }

} // namespace proupsells::foundation

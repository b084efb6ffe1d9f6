// Whether the tests run under a sanitizer that replaces the allocator.
#pragma once

namespace proupsells::tests {

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool isSanitized = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
inline constexpr bool isSanitized = true;
#else
inline constexpr bool isSanitized = false;
#endif
#else
inline constexpr bool isSanitized = false;
#endif

} // namespace proupsells::tests

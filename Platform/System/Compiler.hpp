// What compilers spell differently. An attribute that a compiler lacks is left out.
#pragma once

#if __has_include(<source_location>)
#include <source_location>
#endif

// The place of a call, as the default values of a function's parameters. Some supported compilers lack std::source_location.
#ifdef __cpp_lib_source_location
#define PROUPSELLS_CALLING_FILE std::source_location::current().file_name()
#define PROUPSELLS_CALLING_LINE std::source_location::current().line()
#else
#define PROUPSELLS_CALLING_FILE __builtin_FILE()
#define PROUPSELLS_CALLING_LINE __builtin_LINE()
#endif

// Programs and libraries show the symbol to others, by its name.
#if defined(_WIN32)
#define PROUPSELLS_ALWAYS_EXPORTED __declspec(dllexport)
#elif __has_cpp_attribute(gnu::visibility)
#define PROUPSELLS_ALWAYS_EXPORTED [[gnu::visibility("default")]]
#else
#define PROUPSELLS_ALWAYS_EXPORTED
#endif

// Hosts, or another of our libraries, use the class or function. Shared libraries show it; what is linked statically shows nothing.
#if defined(PROUPSELLS_SHARED)
#define PROUPSELLS_EXPORT PROUPSELLS_ALWAYS_EXPORTED
#else
#define PROUPSELLS_EXPORT
#endif

// The symbol stays although no code reads it.
#if __has_cpp_attribute(gnu::used) && __has_cpp_attribute(gnu::retain)
#define PROUPSELLS_KEPT [[gnu::used, gnu::retain]]
#elif __has_cpp_attribute(gnu::used)
#define PROUPSELLS_KEPT [[gnu::used]]
#else
#define PROUPSELLS_KEPT
#endif

// A function that becomes part of each of its callers, however large it is.
#if defined(_MSC_VER)
#define PROUPSELLS_ALWAYS_INLINE __forceinline
#elif __has_cpp_attribute(gnu::always_inline)
#define PROUPSELLS_ALWAYS_INLINE [[gnu::always_inline]] inline
#else
#define PROUPSELLS_ALWAYS_INLINE inline
#endif

// One function for every processor, and one for those with longer vectors; the loader takes its pick. Whole numbers come out the
// same either way.
#if defined(__x86_64__) && defined(__linux__) && __has_cpp_attribute(gnu::target_clones) && !defined(__clang__)
#define PROUPSELLS_VECTORIZED [[gnu::target_clones("avx2", "default")]]
#else
#define PROUPSELLS_VECTORIZED
#endif

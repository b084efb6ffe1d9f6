// The application object of the tests.
#pragma once

#include "Backends/Qt/Application.hpp"

namespace proupsells::tests {

inline qtbackend::Application* program = nullptr; // main()'s

} // namespace proupsells::tests

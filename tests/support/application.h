#pragma once

#include <QApplication>

#include <memory>

namespace velmora {

/// Creates the application for tests, benchmarks and the soak, with Velmora's style and typeface. It runs
/// offscreen unless QT_QPA_PLATFORM is set.
std::unique_ptr<QApplication> makeApplication(int& argc, char* argv[]);

} // namespace velmora

#pragma once

#include <QApplication>

#include <memory>

namespace velmora {

/// The application of tests, benchmarks and the soak, with Velmora's style and typeface. It shows nothing
/// unless QT_QPA_PLATFORM names a platform.
std::unique_ptr<QApplication> makeApplication(int& argc, char* argv[]);

} // namespace velmora

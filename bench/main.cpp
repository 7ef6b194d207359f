#include "samples.h"
#include "store/history.h"
#include "ui/look/fonts.h"
#include "ui/look/style.h"

#include <QApplication>
#include <benchmark/benchmark.h>

namespace {

/// `--sample-data DIRECTORY`: a data directory with a full history, for measurements of the whole program.
void writeSample(const QString& directory) {
    velmora::DataFiles files{QDir(directory)};
    files.saveSettings(velmora::samples::onboarded());
    velmora::History(files).add(velmora::samples::flownHistory(200));
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc == 3 && qstrcmp(argv[1], "--sample-data") == 0) {
        writeSample(QString::fromLocal8Bit(argv[2]));
        return 0;
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication app(argc, argv);
    QApplication::setStyle(new velmora::Style);
    QApplication::setPalette(velmora::Style::lightPalette());
    velmora::SBFont::registerBundled();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

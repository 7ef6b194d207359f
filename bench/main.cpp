#include "samples.h"
#include "store/history.h"
#include "support/application.h"

#include <benchmark/benchmark.h>

namespace {

/// Implements `--sample-data DIRECTORY`: writes a data directory with a full history, for measuring the
/// program.
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
    const auto application = velmora::makeApplication(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

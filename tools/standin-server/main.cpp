#include "standin-server/standin_server.h"

#include <QCoreApplication>
#include <QTimer>

#include <iostream>

using namespace velmora;
using namespace velmora::standin;

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const auto read = readOptions(QCoreApplication::arguments());
    if (const auto* text = std::get_if<OptionsText>(&read)) {
        (text->isError ? std::cerr : std::cout) << text->text.toStdString();
        return text->isError ? 1 : 0;
    }
    const Options options = std::get<Options>(read);
    const auto clock = [] { return Date(std::chrono::system_clock::now()); };
    SystemRandom random;
    SimulatedSite site(options.visitor, options.every, clock(), random);
    AppApi api(site, clock);
    StandinServer server(options, api);

    const std::string address = options.host.toString().toStdString() + ':' + std::to_string(options.port);
    if (const QString problem = server.listen(); !problem.isEmpty()) {
        std::cerr << "Cannot listen on " << address << ": " << problem.toStdString() << '\n';
        return 1;
    }
    std::cout << "Serving the app API at http://" << address << "/api/app/v1/ (Ctrl+C stops)" << std::endl;

    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] { site.advance(clock()); });
    timer.start(std::chrono::milliseconds(50));
    return QCoreApplication::exec();
}

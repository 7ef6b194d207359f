#include <QApplication>
#include <QTimer>
#include <QWidget>

namespace {

constexpr int tickInterval = 50; // milliseconds, as the program's

/// Paints one colour, by which its first frame is recognised on the screen.
class EmptyWindow : public QWidget {
public:
    explicit EmptyWindow(const QColor& color) {
        resize(1280, 800);
        setPalette(color);
    }
};

} // namespace

/// A window that shows nothing and ticks as often as Velmora: what any program of this kind costs.
/// Usage: velmora-empty-window COLOUR
int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    EmptyWindow window(QColor(QString::fromLocal8Bit(argc > 1 ? argv[1] : "#12ab34")));
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    int ticks = 0;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&ticks] { ++ticks; });
    timer.start(tickInterval);
    window.show();
    return QApplication::exec();
}

#pragma once

#include <QStackedWidget>

namespace velmora {

/// The screens of the sections, one at a time; the next one fades in over the last.
class SectionStack : public QStackedWidget {
    Q_OBJECT

public:
    explicit SectionStack(QWidget* parent);

    void showSection(QWidget* section);

private:
    class Fading;

    Fading* fading_;
};

} // namespace velmora

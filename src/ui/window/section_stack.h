#pragma once

#include <QWidget>

class QStackedLayout;

namespace velmora {

/// The screens of the sections, one at a time; the next one fades in over the last.
class SectionStack : public QWidget {
    Q_OBJECT

public:
    explicit SectionStack(QWidget* parent);

    void addSection(QWidget* section);
    void showSection(QWidget* section);

private:
    class Fading;

    QStackedLayout* sections_;
    Fading* fading_;
};

} // namespace velmora

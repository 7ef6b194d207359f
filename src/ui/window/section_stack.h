#pragma once

#include <QWidget>

class QStackedLayout;

namespace velmora {

/// Shows one section at a time, with a cross-fade between two.
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

#pragma once

#include "store/app_store.h"

#include <QPixmap>
#include <QWidget>

namespace velmora {

class SBButton;

/// Welcome: introduces the system at the first start and whenever the owner asks. It covers the sections.
class WelcomeView : public QWidget {
    Q_OBJECT

public:
    WelcomeView(AppStore& store, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* buildColumn();
    QWidget* buildTitle();
    QWidget* buildStep(int number, const QString& title, const QString& text);
    QWidget* buildButtons();
    void finish(bool link);
    void loadHero();

    AppStore& store_;
    QWidget* column_;
    QPixmap hero_; ///< at the size and scale last shown
};

} // namespace velmora

#pragma once

#include "store/app_store.h"

#include <QPixmap>
#include <QWidget>

namespace velmora {

class SBButton;

/// The welcome screen, shown over the sections at the first start and on request.
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
    QPixmap hero_; ///< scaled to the area above the column
};

} // namespace velmora

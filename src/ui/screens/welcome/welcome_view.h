#pragma once

#include "store/app_store.h"

#include <QPixmap>
#include <QWidget>

class QVBoxLayout;

namespace velmora {

class SBButton;

/// The welcome screen, shown over the sections at the first start and on request.
class WelcomeView : public QWidget {
    Q_OBJECT

public:
    WelcomeView(AppStore& store, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* buildColumn();
    QWidget* buildTitle();
    QWidget* buildSteps();
    QWidget* buildStep(int number, const QString& title, const QString& text);
    QWidget* buildButtons();
    void finish(bool link);
    QRectF heroArea(QSizeF picture) const;
    void loadHero();
    void paintFades(QPainter& painter) const;

    AppStore& store_;
    QVBoxLayout* steps_ = nullptr;
    QWidget* column_;
    QPixmap hero_;       ///< of the area above the column
    QRectF pictureRect_; ///< where the picture lies in that area
};

} // namespace velmora

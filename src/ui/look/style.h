#pragma once

#include <QProxyStyle>

namespace velmora {

/// The program's widget style: menus, menu bars and scroll bars drawn from the tokens, everything else as in
/// Fusion, and a light palette whatever the desktop's theme.
class Style : public QProxyStyle {
    Q_OBJECT

public:
    Style();

    /// The light palette of the tokens.
    static QPalette lightPalette();

    void polish(QWidget* widget) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
};

} // namespace velmora

#pragma once

#include <QAbstractButton>

namespace velmora {

/// A drop-down choice: the chosen text, in a tooltip if it does not fit, and a chevron. Space, Enter and the
/// down arrow open the menu.
class MenuButton : public QAbstractButton {
    Q_OBJECT

public:
    MenuButton(const QString& name, QWidget* parent);

    /// `chosen` is an index into `options`, or -1 if none of them is chosen.
    void setOptions(const QStringList& options, int chosen);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void chose(int option);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void open();
    QRectF textArea() const;
    void updateToolTip();

    QStringList options_;
};

} // namespace velmora

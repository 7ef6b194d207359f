#pragma once

#include <QAbstractButton>

namespace velmora {

/// A choice from a menu: the chosen text with a chevron. Space, Enter and the down key open it.
class MenuButton : public QAbstractButton {
    Q_OBJECT

public:
    MenuButton(const QString& name, QWidget* parent);

    /// The options and which of them is chosen; -1 for one that is none of them.
    void setOptions(const QStringList& options, int chosen);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void chose(int option);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void open();

    QStringList options_;
};

} // namespace velmora

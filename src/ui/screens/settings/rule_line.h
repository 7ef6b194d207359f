#pragma once

#include <QWidget>

namespace velmora {

/// One of the fixed rules, with a bullet.
class RuleLine : public QWidget {
    Q_OBJECT

public:
    RuleLine(const QString& rule, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QRectF textBox() const;
};

} // namespace velmora

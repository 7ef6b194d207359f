#pragma once

#include "ui/look/icons.h"

#include <QAbstractButton>
#include <QColor>

#include <optional>

namespace velmora {

/// The dot at the right end of a section row.
struct SectionMark {
    QColor color;
    bool halo = false;

    bool operator==(const SectionMark&) const = default;
};

/// One section in the sidebar: icon and title, highlighted while the section is shown.
class SectionRow : public QAbstractButton {
    Q_OBJECT

public:
    SectionRow(Icon icon, const QString& title, QWidget* parent);

    void setMark(std::optional<SectionMark> mark);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QRectF titleBox() const;
    void paintSurface(QPainter& painter) const;
    void paintMark(QPainter& painter) const;

    Icon icon_;
    std::optional<SectionMark> mark_;
};

} // namespace velmora

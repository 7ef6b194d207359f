#pragma once

#include <QPixmap>
#include <QWidget>

namespace velmora {

/// A named picture with rounded corners. Without such a picture it shows a plain panel with a camera icon.
class ArtImage : public QWidget {
    Q_OBJECT

public:
    enum class Mode { fill, fit }; ///< fill crops what does not fit

    ArtImage(const QString& name, Mode mode, double radius, QWidget* parent);

    void setName(const QString& name);
    /// Which part of the picture the mode `fill` shows.
    struct Crop {
        double share = 1;     ///< of the picture's width; less where the focus would not reach its point
        QPointF at{0.5, 0.5}; ///< where Art::focusOf() lies in the widget, as shares of its width and height

        bool operator==(const Crop&) const = default;
    };
    void setCrop(const Crop& crop);
    /// Sets width / height, so that layouts derive the height from the width.
    void setRatio(double ratio) { ratio_ = ratio; }
    /// Rounds only the top corners, for content that follows below without a gap.
    void setSquareBottom(bool square);
    /// Draws the picture faintly on navy, for an offline camera.
    void setFaint(bool faint);

    bool hasHeightForWidth() const override { return ratio_ > 0; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void load();
    QSizeF sizeToFill(QSizeF picture) const;
    QPointF cornerOf(QSizeF shown) const;

    QString name_;
    Crop crop_;
    QPointF focus_{0.5, 0.5};
    Mode mode_;
    double radius_;
    double ratio_ = 0; ///< width / height; 0 for any
    bool squareBottom_ = false;
    bool faint_ = false;
    QPixmap picture_;        ///< scaled to the size in `loadedFor_`
    QSize loadedFor_{-1, 0}; ///< device pixels
};

} // namespace velmora

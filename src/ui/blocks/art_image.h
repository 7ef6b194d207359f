#pragma once

#include <QPixmap>
#include <QWidget>

#include <optional>

namespace velmora {

/// A named picture with rounded corners. Without such a picture it shows a plain panel with a camera icon.
class ArtImage : public QWidget {
    Q_OBJECT

public:
    /// `fill` crops what does not fit; `trimmed` fits the picture without its transparent edges.
    enum class Mode { fill, fit, trimmed };

    ArtImage(const QString& name, Mode mode, double radius, QWidget* parent);

    void setName(const QString& name);
    void setRadius(double radius);
    /// What assistive technology reads. A picture without a description is decoration.
    void setDescription(const QString& description);
    /// Which part of the picture the mode `fill` shows. A picture without a focus is shown as a whole.
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
    /// Sets the opacity, 0 to 1, for a picture that may be out of date.
    void setOpacity(double opacity);

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
    std::optional<QPointF> focus_; ///< of the loaded picture
    Mode mode_;
    double radius_;
    double ratio_ = 0; ///< width / height; 0 for any
    bool squareBottom_ = false;
    bool faint_ = false;
    double opacity_ = 1;
    QPixmap picture_;        ///< scaled to the size in `loadedFor_`
    QSize loadedFor_{-1, 0}; ///< device pixels
};

} // namespace velmora

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

    QString name_;
    Mode mode_;
    double radius_;
    double ratio_ = 0; ///< width / height; 0 for any
    bool squareBottom_ = false;
    bool faint_ = false;
    QPixmap picture_;        ///< scaled to the size in `loadedFor_`
    QSize loadedFor_{-1, 0}; ///< device pixels
};

} // namespace velmora

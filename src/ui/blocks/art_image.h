#pragma once

#include <QPixmap>
#include <QWidget>

namespace velmora {

/// A named picture in round corners; a quiet panel with a camera where there is none.
class ArtImage : public QWidget {
    Q_OBJECT

public:
    enum class Mode { fill, fit }; ///< fill crops what does not fit

    ArtImage(const QString& name, Mode mode, double radius, QWidget* parent);

    void setName(const QString& name);
    /// Lets layouts derive the height from the width: width / height.
    void setRatio(double ratio) { ratio_ = ratio; }
    /// Round corners at the top only: something follows below without a gap.
    void setSquareBottom(bool square);
    /// A faint picture on navy: the camera is offline.
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
    double ratio_ = 0; ///< 0: any
    bool squareBottom_ = false;
    bool faint_ = false;
    QPixmap picture_;        ///< at the size and scale that it was last shown in
    QSize loadedFor_{-1, 0}; ///< device pixels
};

} // namespace velmora

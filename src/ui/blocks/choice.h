#pragma once

#include <QRadioButton>
#include <QWidget>

#include <vector>

namespace velmora {

/// A radio button with its text. Sibling radio buttons exclude each other.
class RadioChoice : public QRadioButton {
    Q_OBJECT

public:
    RadioChoice(const QString& text, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& position) const override;
};

/// A row of options, exactly one of them chosen. The left and right arrow keys move the choice.
class SegmentedChoice : public QWidget {
    Q_OBJECT

public:
    SegmentedChoice(const QString& name, const QStringList& options, bool wide, QWidget* parent);

    int currentIndex() const { return currentIndex_; }
    /// Does not emit `activated`.
    void setCurrentIndex(int index);
    /// Moves the keyboard focus to the chosen option.
    void focusChosen(Qt::FocusReason reason);

signals:
    /// The owner chose an option by mouse, key or accessible action.
    void activated(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    class Segment;

    std::vector<Segment*> segments_;
    int currentIndex_ = 0;
};

} // namespace velmora

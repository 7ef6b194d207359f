#pragma once

#include "ui/look/icons.h"
#include "ui/look/transition.h"

#include <QAbstractButton>

#include <optional>

namespace velmora {

enum class SBButtonKind { primary, secondary, quiet, danger, onDark };

/// Appearance of an SBButton.
struct SBButtonStyle {
    SBButtonKind kind = SBButtonKind::secondary;
    bool wide = false; ///< fills the column
    bool large = false;
    std::optional<Icon> icon = std::nullopt;
};

/// Colours of a button in one state.
struct SBButtonColors {
    QColor fill;
    QColor border;
    QColor text;

    bool operator==(const SBButtonColors&) const = default;
};

/// A push button. Space and Enter click it.
class SBButton : public QAbstractButton {
    Q_OBJECT

public:
    enum class State { normal, hover, pressed, disabled };
    static SBButtonColors colorsOf(SBButtonKind kind, State state);

    SBButton(const QString& text, const SBButtonStyle& style, QWidget* parent);

    /// Draws the button as if it were disabled; it can still be clicked.
    void setPale(bool pale);
    /// Shows “Sent…” instead of the text, paler, and ignores mouse and keys: the button's command is pending.
    /// It keeps its size and the focus. An accessible press still emits clicked().
    void setSent(bool sent);
    bool isSent() const { return sent_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool hitButton(const QPoint& at) const override;

private:
    State wantedState() const;
    void fadeToState();

    SBButtonStyle style_;
    SBButtonColors from_, shown_, target_;
    Transition fade_;
    bool pale_ = false;
    bool sent_ = false;
};

} // namespace velmora

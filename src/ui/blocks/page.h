#pragma once

#include "ui/blocks/headline.h"

#include <optional>

namespace velmora {

class ScrollArea;
class Text;

/// The frame of a section's screen: eyebrow, headline, optional lede, an optional widget to the right of the
/// heading, and the content. It scrolls if the window is too small.
class Page : public QWidget {
    Q_OBJECT

public:
    /// Parts of a page, which takes ownership of the widgets. `trailing` may be null.
    struct Parts {
        QString eyebrow;
        Sentence headline;
        std::optional<QString> lede = std::nullopt;
        int ledeWidth = 0;  ///< maximum in pixels; 0 for the default
        bool fills = false; ///< the content takes all the height available
        int width = 0;      ///< maximum for heading and content, in pixels; 0 for the window's default
        int contentGap = 0; ///< between heading and content, pixels
        QWidget* trailing = nullptr;
        QWidget* content = nullptr;
    };

    Page(const Parts& parts, QWidget* parent);

    void scrollToTop();
    void setHeadline(const Sentence& headline);
    void setLede(const QString& lede);
    /// Sets the gap between heading and content, in pixels.
    void setContentGap(int gap);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* buildHeading(const Parts& parts);

    QWidget* heading_;
    Headline* headline_;
    ScrollArea* area_;
    Text* lede_ = nullptr;
    int width_; ///< maximum of heading and content, pixels; 0 for the default
};

} // namespace velmora

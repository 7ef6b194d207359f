#pragma once

class QAbstractButton;

namespace velmora {

/// Lets Enter press a button as Space does.
void clickOnEnter(QAbstractButton* button);

} // namespace velmora

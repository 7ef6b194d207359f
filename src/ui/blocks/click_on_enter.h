#pragma once

class QAbstractButton;

namespace velmora {

/// Makes Enter click the button, as Space does.
void clickOnEnter(QAbstractButton* button);

} // namespace velmora

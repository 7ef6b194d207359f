#pragma once

class QAbstractButton;

namespace velmora {

/// Lets Enter press a button as Space does. A held key presses once.
void letEnterPress(QAbstractButton* button);

} // namespace velmora

#pragma once

class QAbstractButton;

namespace velmora {

/// Lets Enter press a button as Space does.
void letEnterPress(QAbstractButton* button);

} // namespace velmora

#pragma once

namespace velmora {

/// Whether the desktop starts Velmora, hidden, when the owner logs in.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    virtual bool isOn() const = 0;
    /// Returns false if the desktop's setting could not be changed.
    virtual bool setOn(bool on) = 0;
};

} // namespace velmora

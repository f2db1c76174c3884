#pragma once

namespace qbsp::recorder {

/// A connection to the X server on which it reports each new keyboard layout. The application's own would do,
/// but GNUstep takes all of its events and passes these on to nobody.
class X11LayoutWatch {
public:
    /// Connects to the server of that open connection (a Display*), which may be null.
    explicit X11LayoutWatch(void* applicationsDisplay);
    ~X11LayoutWatch();
    X11LayoutWatch(const X11LayoutWatch&) = delete;
    X11LayoutWatch& operator=(const X11LayoutWatch&) = delete;

    /// The connection (a Display*), which knows the layout that was last reported; the application's own
    /// where the server admits no other.
    [[nodiscard]] void* display() const { return display_ == nullptr ? applicationsDisplay_ : display_; }

    /// The file that becomes readable when the server reports something; -1 when it never does.
    [[nodiscard]] int descriptor() const;

    /// Reads all that the server has reported. Returns true when that was a new layout.
    [[nodiscard]] bool readNews();

private:
    [[nodiscard]] bool isNewLayout(void* event) const;

    void* applicationsDisplay_;
    void* display_ = nullptr;
    int firstXkbEvent_ = 0;
};

} // namespace qbsp::recorder

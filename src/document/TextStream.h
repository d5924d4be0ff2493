#pragma once

#include <concepts>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace orvane {

/// A growing narrow text. Doubles go out in the general format with 6 significant digits (`0.75`, `1e-05`,
/// `-0`, `inf`), whatever the locale; integers as decimals; texts as they are, without any escaping. With a
/// drain, text that has piled up is handed on whenever `drain` is called, so that a long text never stands in
/// memory whole.
class TextStream {
public:
    using Drain = std::function<void(std::string_view)>;

    TextStream& operator<<(std::string_view text) {
        text_.append(text);
        return *this;
    }
    TextStream& operator<<(std::int32_t value);
    TextStream& operator<<(std::int64_t value);
    TextStream& operator<<(double value);
    /// Neither has one obvious form in the text.
    template <class Value>
    requires std::same_as<Value, bool> || std::same_as<Value, char> TextStream& operator<<(Value) = delete;

    /// Appends a number with one digit before the point and eight behind it: -1 gives `-1.00000000e+00`.
    TextStream& appendScientific(double value);

    /// From now on, hands what stands in the stream to `drain` at each call of `drainIfLarge` that finds
    /// enough of it.
    void drainTo(Drain drain) { drain_ = std::move(drain); }
    void drainIfLarge() {
        if (drain_ && text_.size() >= kDrainSize) {
            drainAll();
        }
    }
    /// Hands on everything that is left; without a drain, does nothing.
    void drainAll();

    /// What was appended and not yet handed on.
    const std::string& text() const { return text_; }

private:
    static constexpr std::size_t kDrainSize = 256 * 1024;

    std::string text_;
    Drain drain_;
};

} // namespace orvane

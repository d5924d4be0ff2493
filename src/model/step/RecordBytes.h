#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

/// Records as bytes for another process of the same program, and back. A record takes part by a function
/// `exchange(archive, record)` that names its members once for both ways: `archive(record.a, record.b);`
namespace orvane::step {

template <class Value>
concept PlainValue = std::is_arithmetic_v<Value> || std::is_enum_v<Value>;
template <class Value>
concept OptionalValue = requires(Value& value) {
    value.has_value();
};
template <class Value>
concept ListValue = requires(Value& value) {
    value.resize(0);
};
template <class Value>
concept FixedList = requires(Value& value) {
    std::tuple_size<Value>::value;
};

/// Appends values to bytes.
class RecordWriter {
public:
    const std::vector<std::byte>& bytes() const { return bytes_; }

    template <class... Values>
    void operator()(const Values&... values) {
        (write(values), ...);
    }

private:
    void append(const void* data, std::size_t size) {
        const auto* first = static_cast<const std::byte*>(data);
        bytes_.insert(bytes_.end(), first, first + size);
    }

    template <class Value>
    void write(const Value& value) {
        if constexpr (PlainValue<Value>) {
            append(&value, sizeof value);
        } else if constexpr (OptionalValue<Value>) {
            write(value.has_value());
            if (value.has_value()) {
                write(*value);
            }
        } else if constexpr (ListValue<Value>) {
            write(value.size());
            if constexpr (PlainValue<typename Value::value_type>) {
                append(value.data(), value.size() * sizeof(typename Value::value_type));
            } else {
                for (const auto& element : value) {
                    write(element);
                }
            }
        } else if constexpr (FixedList<Value>) {
            append(value.data(), sizeof value);
        } else {
            exchange(*this, const_cast<Value&>(value)); // NOLINT: read only, by the same function as below
        }
    }

    std::vector<std::byte> bytes_;
};

/// Takes values from bytes. Throws `std::out_of_range` where there are too few: the process that wrote them
/// may have been out of its mind.
class RecordReader {
public:
    explicit RecordReader(std::span<const std::byte> bytes) : bytes_(bytes) {}

    template <class... Values>
    void operator()(Values&... values) {
        (read(values), ...);
    }

private:
    std::span<const std::byte> take(std::size_t count, std::size_t size) {
        if (count > bytes_.size() / size) {
            throw std::out_of_range("a record is cut off");
        }
        const auto taken = bytes_.first(count * size);
        bytes_ = bytes_.subspan(count * size);
        return taken;
    }

    void copy(void* to, std::size_t count, std::size_t size) {
        const auto from = take(count, size);
        if (!from.empty()) {
            std::memcpy(to, from.data(), from.size());
        }
    }

    template <class Value>
    void read(Value& value) {
        if constexpr (std::is_same_v<Value, bool>) {
            unsigned char byte = 0;
            read(byte);
            value = byte != 0;
        } else if constexpr (PlainValue<Value>) {
            copy(&value, 1, sizeof value);
        } else if constexpr (OptionalValue<Value>) {
            bool isThere = false;
            read(isThere);
            if (isThere) {
                read(value.emplace());
            }
        } else if constexpr (ListValue<Value>) {
            readElements(value);
        } else if constexpr (FixedList<Value>) {
            copy(value.data(), 1, sizeof value);
        } else {
            exchange(*this, value);
        }
    }

    template <class List>
    void readElements(List& list) {
        std::size_t count = 0;
        read(count);
        using Element = typename List::value_type;
        if constexpr (PlainValue<Element>) {
            if (count > bytes_.size() / sizeof(Element)) {
                throw std::out_of_range("a record is cut off");
            }
            list.resize(count);
            copy(list.data(), count, sizeof(Element));
        } else {
            for (std::size_t i = 0; i < count; ++i) {
                read(list.emplace_back()); // never more of them than there are bytes
            }
        }
    }

    std::span<const std::byte> bytes_;
};

} // namespace orvane::step

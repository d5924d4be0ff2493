#pragma once

#include <nlohmann/json.hpp>

#include <utility>

namespace orvane::json {

/// A whole JSON value. It takes itself apart without taking memory, which the library's own way needs, and
/// ends the process where it gets none. The reader limits how deep values nest.
class JsonTree {
public:
    JsonTree() = default;
    JsonTree(JsonTree&& other) noexcept : root_(std::exchange(other.root_, nullptr)) {}
    JsonTree& operator=(JsonTree&&) = delete;
    ~JsonTree() { takeApart(root_); }

    nlohmann::json& root() { return root_; }
    const nlohmann::json& root() const { return root_; }

private:
    static void takeApart(nlohmann::json& value) noexcept {
        if (value.is_array()) {
            auto& elements = value.get_ref<nlohmann::json::array_t&>();
            for (nlohmann::json& element : elements) {
                takeApart(element);
            }
            elements.clear();
        } else if (value.is_object()) {
            auto& entries = value.get_ref<nlohmann::json::object_t&>();
            for (auto& [key, entry] : entries) {
                takeApart(entry);
            }
            entries.clear();
        }
    }

    nlohmann::json root_;
};

} // namespace orvane::json

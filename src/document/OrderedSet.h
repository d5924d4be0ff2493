#pragma once

#include <unordered_set>
#include <vector>

namespace orvane {

/// Values in the order of their first adding, each once.
template <class Value>
class OrderedSet {
public:
    /// Adds a value unless it is there already.
    void add(const Value& value) {
        if (known_.insert(value).second) {
            values_.push_back(value);
        }
    }

    bool empty() const { return values_.empty(); }
    auto begin() const { return values_.begin(); }
    auto end() const { return values_.end(); }

private:
    std::vector<Value> values_;
    std::unordered_set<Value> known_;
};

} // namespace orvane

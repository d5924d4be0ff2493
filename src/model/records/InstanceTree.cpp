#include "model/records/InstanceTree.h"

#include <algorithm>

namespace orvane {

namespace {

using List = std::vector<ComponentRecord>;
using Sizes = std::unordered_map<const ModelDocument*, TreeSize>;

void collectDocuments(const List& list, std::vector<const ModelDocument*>& out) {
    for (const ComponentRecord& component : list) {
        if (component.document != nullptr) {
            out.push_back(component.document);
        }
        if (component.components) {
            collectDocuments(*component.components, out);
        }
    }
}

TreeSize measureList(const List& list, const Sizes& documents) {
    TreeSize size;
    for (const ComponentRecord& component : list) {
        TreeSize below;
        if (component.components) {
            below = measureList(*component.components, documents);
        } else if (const auto entry = documents.find(component.document); entry != documents.end()) {
            below = entry->second;
        }
        size.components = std::min(size.components + 1 + below.components, kMostComponents + 1);
        size.levels = std::max(size.levels, below.levels + 1);
    }
    return size;
}

} // namespace

const List* childrenOf(const ComponentRecord& component) {
    if (component.components) {
        return &*component.components;
    }
    return component.document != nullptr ? &component.document->components : nullptr;
}

// Without recursion, since chains of documents have any length: a document is measured when all that it
// refers to are.
TreeSize TreeSizes::of(const ModelDocument& document) {
    struct Visit {
        const ModelDocument* document = nullptr;
        std::vector<const ModelDocument*> children;
    };
    std::vector<Visit> stack;
    const auto enter = [&](const ModelDocument* next) {
        if (!known_.contains(next)) {
            collectDocuments(next->components, stack.emplace_back(Visit{next, {}}).children);
        }
    };
    enter(&document);
    while (!stack.empty()) {
        Visit& visit = stack.back();
        if (visit.children.empty()) {
            known_[visit.document] = measureList(visit.document->components, known_);
            stack.pop_back();
        } else {
            const ModelDocument* child = visit.children.back();
            visit.children.pop_back();
            enter(child);
        }
    }
    return known_[&document];
}

const ComponentNames::Index& ComponentNames::indexOf(const List& list) {
    const auto [entry, isNew] = indexes_.try_emplace(&list);
    if (isNew) {
        for (const ComponentRecord& component : list) {
            entry->second.emplace(component.name, &component);
        }
    }
    return entry->second;
}

bool ComponentNames::contains(const ModelDocument& document, std::u16string_view fullName) {
    // Equal names in one parent open several ways; each list is walked once however many ways lead to it.
    std::vector<const List*> level = {&document.components};
    for (;;) {
        const std::size_t slash = fullName.find(u'/');
        const std::u16string_view leaf = fullName.substr(0, slash);
        if (slash == std::u16string_view::npos) {
            return std::ranges::any_of(level,
                                       [&](const List* list) { return indexOf(*list).contains(leaf); });
        }
        std::vector<const List*> next;
        for (const List* list : level) {
            const auto [first, last] = indexOf(*list).equal_range(leaf);
            for (auto entry = first; entry != last; ++entry) {
                if (const List* children = childrenOf(*entry->second)) {
                    next.push_back(children);
                }
            }
        }
        std::ranges::sort(next);
        next.erase(std::unique(next.begin(), next.end()), next.end());
        level = std::move(next);
        fullName.remove_prefix(slash + 1);
    }
}

} // namespace orvane

#include "model/step/ProductTree.h"

#include "model/records/HostPath.h"
#include "model/records/ModelDefaults.h"
#include "model/records/ModelError.h"
#include "model/step/Looks.h"
#include "platform/NarrowText.h"
#include "platform/Utf8.h"

#include <algorithm>

namespace orvane::step {

namespace {

/// Where a part stands, for a person: the names from the top of the file down to it, or that of the product
/// where it is the whole file.
std::string shownWay(const std::vector<std::u16string>& way, const std::u16string& product) {
    std::u16string text;
    for (const std::u16string& name : way) {
        text += text.empty() ? name : u'/' + name;
    }
    return utf8FromUtf16(text.empty() ? product : text);
}

/// A file of which nothing can be shown because the kernel did not survive it is refused.
void refuseWhereAllIsLost(const std::filesystem::path& file, const StepFile& step) {
    const auto isThere = [](const PartOutcome& outcome) { return outcome.part && outcome.part->hasShape; };
    const bool hasOthers = std::ranges::any_of(
        step.tree.products, [](const StepProduct& product) { return product.externalFile.has_value(); });
    if (hasOthers || step.parts.empty() || std::ranges::any_of(step.parts, isThere)) {
        return;
    }
    const auto lost = std::ranges::find_if(step.parts, [](const auto& outcome) { return !outcome.part; });
    throw ModelError(file.string() +
                     (lost == step.parts.end()
                          ? ": found no shape, expected at least one product with a shape"
                          : ": Open CASCADE " + lost->loss + ", and nothing else is in the file"));
}

/// Gives an assembly's document what the file says of one instance in it and of those below that one. Needs
/// the leaf names of all of them.
void addInstanceLook(const StepInstance& instance, const std::vector<std::u16string>& componentNames,
                     ComponentRecord& component, ModelDocument& assembly) {
    component.hidden = instance.isHidden;
    EntityRecord entity;
    entity.kind = EntityKind::component;
    entity.component = component.name;
    if (instance.look) {
        applyLook(*instance.look, entity, assembly.appearances);
    }
    for (const InstanceColor& color : instance.colors) {
        entity.component.clear();
        for (const std::uint32_t link : color.path) {
            entity.component += entity.component.empty() ? u"" : u"/";
            entity.component += link < componentNames.size() ? componentNames[link] : std::u16string();
        }
        applyLook(color.look, entity, assembly.appearances);
    }
}

} // namespace

const ModelDocument* ProductTree::readFile(const std::filesystem::path& file) {
    const std::filesystem::path absolute = std::filesystem::absolute(file).lexically_normal();
    const std::filesystem::path key = std::filesystem::weakly_canonical(absolute);
    const auto [known, isNew] = files_.emplace(key, nullptr);
    if (!isNew) {
        if (known->second == nullptr) {
            throw ModelError(absolute.string() +
                             ": found that the file refers to itself, directly or through others, "
                             "expected references that end");
        }
        return known->second;
    }
    File opened;
    opened.name = absolute;
    opened.step = readStepProducts(absolute, options_);
    refuseWhereAllIsLost(absolute, opened.step);
    std::ranges::copy(opened.step.tree.warnings, std::back_inserter(model_.warnings));
    opened.path = toHostPath(absolute);
    opened.title = fromSystemNarrow(absolute.filename().string());
    opened.documents.resize(opened.step.tree.products.size());
    opened.componentNames.resize(opened.step.tree.instances.size());
    return files_[key] = readRoots(opened);
}

const ModelDocument* ProductTree::readRoots(File& file) {
    const StepTree& tree = file.step.tree;
    const StepInstance& first = tree.instances.at(tree.roots.at(0));
    ModelDocument& document = addDocument(file.path, file.title);
    // A file that only names another one is opened under its own name, as an assembly of that other one.
    if (tree.roots.size() == 1 && !first.isReference && !tree.products.at(first.product).externalFile) {
        fillDocument(file, first.product, document);
    } else {
        fillAssembly(file, tree.roots, document);
    }
    return &document;
}

const ModelDocument* ProductTree::documentOf(File& file, std::uint32_t product) {
    if (file.documents.at(product) != nullptr) {
        return file.documents[product];
    }
    const StepProduct& record = file.step.tree.products[product];
    if (record.externalFile) {
        std::error_code error;
        if (!std::filesystem::is_regular_file(*record.externalFile, error)) {
            throw ModelError(file.name.string() + ": found a reference to " + *record.externalFile +
                             ", which is not there, expected the file that holds the shape");
        }
        return file.documents[product] = readFile(*record.externalFile);
    }
    ModelDocument& document =
        addDocument(file.path + u'\\' + file.documentNames.take(record.name), record.name);
    document.root.name = record.name; // a product's name has no extension
    fillDocument(file, product, document);
    return &document;
}

void ProductTree::fillDocument(File& file, std::uint32_t product, ModelDocument& document) {
    file.documents[product] = &document;
    if (const StepProduct& record = file.step.tree.products[product]; record.isAssembly) {
        fillAssembly(file, record.instances, document);
    } else {
        fillPart(file, product, document);
    }
}

void ProductTree::fillPart(File& file, std::uint32_t product, ModelDocument& part) {
    const StepProduct& record = file.step.tree.products[product];
    PartOutcome& outcome = file.step.parts.at(record.part.value());
    const std::string what = file.name.string() + ": " + shownWay(file.way, record.name);
    if (!outcome.part) {
        model_.warnings.push_back(what + " is missing: Open CASCADE " + outcome.loss);
        return;
    }
    for (const std::string& warning : outcome.part->warnings) {
        model_.warnings.push_back(what + ": " + warning);
    }
    if (!outcome.part->hasShape) {
        model_.warnings.push_back(what + " is missing: the file gives it no shape");
    }
    part.bodies = std::move(outcome.part->bodies);
    part.appearances = std::move(outcome.part->appearances);
}

void ProductTree::fillAssembly(File& file, const std::vector<std::uint32_t>& instances,
                               ModelDocument& assembly) {
    const StepTree& tree = file.step.tree;
    assembly.kind = DocumentKind::assembly;
    SiblingNames names;
    for (const std::uint32_t instance : instances) {
        names.reserve(tree.instances.at(instance).name);
    }
    assembly.components.resize(instances.size());
    for (std::size_t i = 0; i < instances.size(); ++i) {
        const StepInstance& instance = tree.instances[instances[i]];
        ComponentRecord& component = assembly.components[i];
        component.name = names.take(instance.name);
        component.placement = instance.placement;
        file.way.push_back(component.name);
        component.document = documentOf(file, instance.product);
        file.way.pop_back();
        file.componentNames[instances[i]] = component.name;
    }
    for (std::size_t i = 0; i < instances.size(); ++i) {
        const StepInstance& instance = tree.instances[instances[i]];
        if (instance.isReference) {
            addInstanceLook(instance, file.componentNames, assembly.components[i], assembly);
        }
    }
}

ModelDocument& ProductTree::addDocument(const std::u16string& path, const std::u16string& title) {
    ModelDocument& document = *model_.documents.emplace_back(std::make_unique<ModelDocument>());
    document.path = path;
    setTitle(document, title);
    document.configurations.push_back(defaultConfiguration());
    return document;
}

} // namespace orvane::step

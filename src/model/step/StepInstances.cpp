#include "model/step/StepInstances.h"

#include "model/step/StepText.h"

#include <StepRepr_NextAssemblyUsageOccurrence.hxx>

#include <algorithm>
#include <string>
#include <unordered_map>

namespace orvane::step {

namespace {

using Occurrence = Handle(StepRepr_NextAssemblyUsageOccurrence);

/// Finds the instance that stands for each usage of the file. The kernel finds an instance by its shape and
/// location alone, which gives names away to instances of the same product at the same place in other
/// assemblies; here the parent decides.
class InstanceFinder {
public:
    explicit InstanceFinder(const TransferResult& result) : result_(result) {}

    /// An instance that was not found before; a null label where there is none.
    TDF_Label take(const Occurrence& usage) {
        const TDF_Label parent = result_.labelOf(result_.shapeOf(usage->RelatingProductDefinition()));
        const TopoDS_Shape shape = result_.shapeOf(usage);
        const TDF_Label product = result_.labelOf(shape);
        if (parent.IsNull() || product.IsNull() || !XCAFDoc_ShapeTool::IsAssembly(parent)) {
            return {};
        }
        TDF_LabelSequence& components = untaken(parent);
        for (Standard_Integer i = 1; i <= components.Length(); ++i) {
            const TDF_Label component = components.Value(i);
            TDF_Label referred;
            if (XCAFDoc_ShapeTool::GetReferredShape(component, referred) && referred == product &&
                XCAFDoc_ShapeTool::GetLocation(component) == shape.Location()) {
                components.Remove(i);
                return component;
            }
        }
        return {};
    }

private:
    TDF_LabelSequence& untaken(const TDF_Label& parent) {
        if (!untaken_.IsBound(parent)) {
            TDF_LabelSequence components;
            XCAFDoc_ShapeTool::GetComponents(parent, components);
            untaken_.Bind(parent, components);
        }
        return untaken_.ChangeFind(parent);
    }

    const TransferResult& result_;
    LabelMap<TDF_LabelSequence> untaken_;
};

void readInstanceName(const Occurrence& usage, const TDF_Label& instance, StepDocument& step) {
    TDF_Label product;
    XCAFDoc_ShapeTool::GetReferredShape(instance, product);
    const std::u16string* productName = step.productNames.Seek(product);
    const std::u16string name =
        instanceName(usage->HasDescription() ? fromStepText(usage->Description()) : std::u16string(),
                     fromStepText(usage->Name()), fromStepText(usage->Id()),
                     productName == nullptr ? std::u16string() : *productName);
    if (!name.empty()) {
        step.instanceNames.Bind(instance, name);
    }
}

} // namespace

void readInstances(const std::vector<InstanceStyle>& styles, const Handle(Interface_InterfaceModel) & model,
                   const TransferResult& result, StepDocument& step) {
    InstanceFinder finder(result);
    std::unordered_map<const Standard_Transient*, TDF_Label> instances;
    for (Standard_Integer i = 1; i <= model->NbEntities(); ++i) {
        const Occurrence usage = Occurrence::DownCast(model->Value(i));
        if (usage.IsNull()) {
            continue;
        }
        const TDF_Label instance = finder.take(usage);
        instances[usage.get()] = instance;
        if (!instance.IsNull()) {
            readInstanceName(usage, instance, step);
        }
    }
    for (const InstanceStyle& style : styles) {
        InstanceLabelColor color{{}, style.color};
        for (const Occurrence& usage : style.path) {
            color.path.push_back(instances[usage.get()]);
        }
        if (std::ranges::any_of(color.path, &TDF_Label::IsNull)) {
            continue;
        }
        if (!step.instanceColors.IsBound(color.path.front())) {
            step.instanceColors.Bind(color.path.front(), {});
        }
        step.instanceColors.ChangeFind(color.path.front()).push_back(color);
    }
}

} // namespace orvane::step

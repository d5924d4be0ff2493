#include "model/step/TreeRecords.h"

#include "model/step/Kernel.h"
#include "model/step/PartSize.h"
#include "model/step/StepColors.h"

#include <gp_Mat.hxx>
#include <gp_Trsf.hxx>

#include <cmath>

namespace orvane::step {

namespace {

/// The host multiplies row vectors: its block is the transpose of the kernel's. A mirror stays in the block,
/// whose determinant is then -1; the scale is positive.
Placement toPlacement(const gp_Trsf& transform) {
    Placement placement = kIdentityPlacement;
    const double scale = std::abs(transform.ScaleFactor());
    const gp_Mat matrix = transform.VectorialPart();
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            placement[3 * row + column] =
                matrix(static_cast<int>(column) + 1, static_cast<int>(row) + 1) / scale;
        }
        placement[9 + row] =
            transform.TranslationPart().Coord(static_cast<int>(row) + 1) * kMetresPerMillimetre;
    }
    placement[12] = scale;
    return placement;
}

template <class Value>
Value valueOr(const LabelMap<Value>& values, const TDF_Label& label, const Value& otherwise) {
    const Value* value = values.Seek(label);
    return value == nullptr ? otherwise : *value;
}

class TreeBuilder {
public:
    TreeBuilder(const StepDocument& step, const Interface_Graph& graph) : step_(step), graph_(graph) {}

    TreeAndJobs build() {
        for (const TDF_Label& root : step_.roots) {
            out_.tree.roots.push_back(addInstance(root));
        }
        addInstanceColors();
        out_.tree.partCount = static_cast<std::uint32_t>(out_.jobs.size());
        return std::move(out_);
    }

private:
    std::uint32_t addInstance(const TDF_Label& label) {
        const auto number = static_cast<std::uint32_t>(out_.tree.instances.size());
        out_.tree.instances.emplace_back();
        instances_.Bind(label, number);
        labels_.push_back(label);
        StepInstance instance;
        TDF_Label product = label;
        instance.isReference = XCAFDoc_ShapeTool::GetReferredShape(label, product);
        instance.product = productOf(product);
        instance.name = valueOr(step_.instanceNames, label, out_.tree.products[instance.product].name);
        instance.placement = toPlacement(XCAFDoc_ShapeTool::GetLocation(label).Transformation());
        if (instance.isReference) {
            instance.isHidden = !step_.colors->IsVisible(label);
            if (const auto color = surfaceColorOf(step_.colors, label)) {
                instance.look = toLook(*color);
            }
        }
        out_.tree.instances[number] = std::move(instance);
        return number;
    }

    std::uint32_t productOf(const TDF_Label& label) {
        if (const std::uint32_t* known = products_.Seek(label)) {
            return *known;
        }
        const auto number = static_cast<std::uint32_t>(out_.tree.products.size());
        products_.Bind(label, number);
        StepProduct& product = out_.tree.products.emplace_back();
        product.isAssembly = valueOr(step_.assemblies, label, false);
        product.name =
            valueOr<std::u16string>(step_.productNames, label, product.isAssembly ? u"Assembly" : u"Part");
        if (const std::filesystem::path* file = step_.externalFiles.Seek(label)) {
            product.externalFile = file->string();
        }
        if (product.isAssembly) {
            TDF_LabelSequence components;
            XCAFDoc_ShapeTool::GetComponents(label, components);
            std::vector<std::uint32_t> instances;
            for (const TDF_Label& component : components) {
                instances.push_back(addInstance(component));
            }
            out_.tree.products[number].instances = std::move(instances);
        } else if (!product.externalFile) {
            product.part = addJob(label);
        }
        return number;
    }

    std::uint32_t addJob(const TDF_Label& label) {
        PartJob& job = out_.jobs.emplace_back();
        job.source = valueOr(step_.sources, label, ShapeSource());
        job.inheritedSurface = surfaceColorOf(step_.colors, label);
        job.isInheritedVisible = step_.colors->IsVisible(label);
        job.faceCount = faceCountOf(job.source.entity, graph_);
        return static_cast<std::uint32_t>(out_.jobs.size() - 1);
    }

    void addInstanceColors() {
        for (std::size_t i = 0; i < labels_.size(); ++i) {
            const std::vector<InstanceLabelColor>* colors = step_.instanceColors.Seek(labels_[i]);
            for (std::size_t j = 0; colors != nullptr && j < colors->size(); ++j) {
                InstanceColor color;
                color.look = toLook((*colors)[j].color);
                for (const TDF_Label& link : (*colors)[j].path) {
                    color.path.push_back(valueOr(instances_, link, kNoInstance));
                }
                out_.tree.instances[i].colors.push_back(std::move(color));
            }
        }
    }

    const StepDocument& step_;
    const Interface_Graph& graph_;
    TreeAndJobs out_;
    LabelMap<std::uint32_t> products_;
    LabelMap<std::uint32_t> instances_;
    std::vector<TDF_Label> labels_; ///< of the instances
};

} // namespace

TreeAndJobs describeTree(const StepDocument& step, const Interface_Graph& graph) {
    return TreeBuilder(step, graph).build();
}

} // namespace orvane::step

#include "model/step/ProductTree.h"

#include "model/records/HostPath.h"
#include "model/records/ModelDefaults.h"
#include "model/records/ModelError.h"
#include "model/step/KernelSession.h"
#include "model/step/ShapeMesher.h"
#include "model/step/StepColors.h"
#include "platform/NarrowText.h"
#include "platform/Utf8.h"

#include <TopExp_Explorer.hxx>
#include <gp_Mat.hxx>
#include <gp_Trsf.hxx>

#include <algorithm>

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

TDF_Label productOf(const TDF_Label& label) {
    TDF_Label product;
    return XCAFDoc_ShapeTool::GetReferredShape(label, product) ? product : label;
}

template <class Value>
Value valueOr(const LabelMap<Value>& values, const TDF_Label& label, const Value& otherwise) {
    const Value* value = values.Seek(label);
    return value == nullptr ? otherwise : *value;
}

std::u16string productName(const StepDocument& step, const TDF_Label& product) {
    const bool isAssembly = valueOr(step.assemblies, product, false);
    return valueOr<std::u16string>(step.productNames, product, isAssembly ? u"Assembly" : u"Part");
}

void nameBodies(const StepDocument& step, const PartMesh& mesh, std::vector<BodyRecord>& bodies) {
    std::vector<std::u16string> wanted;
    SiblingNames names;
    for (std::size_t i = 0; i < bodies.size(); ++i) {
        const std::u16string* name = step.shapeNames.Seek(mesh.sources[i].shape.Located(TopLoc_Location()));
        wanted.push_back(name == nullptr ? defaultBodyName(i) : *name);
        names.reserve(wanted.back());
    }
    for (std::size_t i = 0; i < bodies.size(); ++i) {
        bodies[i].name = names.take(wanted[i]);
    }
}

bool holdsCurves(const TopoDS_Shape& shape) {
    return TopExp_Explorer(shape, TopAbs_EDGE).More();
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
    opened.step = loadStepDocument(absolute, model_.warnings);
    opened.path = toHostPath(absolute);
    opened.title = fromSystemNarrow(absolute.filename().string());
    return files_[key] = readRoots(opened);
}

const ModelDocument* ProductTree::readRoots(File& file) {
    const TDF_LabelSequence& roots = file.step.roots;
    const bool isOneProduct = roots.Length() == 1 && !XCAFDoc_ShapeTool::IsReference(roots.First());
    ModelDocument& document = addDocument(file.path, file.title);
    // A file that only names another one is opened under its own name, as an assembly of that other one.
    if (isOneProduct && !file.step.externalFiles.IsBound(roots.First())) {
        fillDocument(file, roots.First(), document);
    } else {
        fillAssembly(file, roots, document);
    }
    return &document;
}

const ModelDocument* ProductTree::documentOf(File& file, const TDF_Label& product) {
    if (const ModelDocument* const* known = file.documents.Seek(product)) {
        return *known;
    }
    if (const std::filesystem::path* external = file.step.externalFiles.Seek(product)) {
        std::error_code error;
        if (!std::filesystem::is_regular_file(*external, error)) {
            throw ModelError(file.step.file.string() + ": found a reference to " + external->string() +
                             ", which is not there, expected the file that holds the shape");
        }
        const ModelDocument* document = readFile(*external);
        file.documents.Bind(product, document);
        return document;
    }
    const std::u16string name = productName(file.step, product);
    ModelDocument& document = addDocument(file.path + u'\\' + file.documentNames.take(name), name);
    document.root.name = name; // a product's name has no extension
    fillDocument(file, product, document);
    return &document;
}

void ProductTree::fillDocument(File& file, const TDF_Label& product, ModelDocument& document) {
    file.documents.Bind(product, &document);
    if (valueOr(file.step.assemblies, product, false)) {
        TDF_LabelSequence instances;
        XCAFDoc_ShapeTool::GetComponents(product, instances);
        fillAssembly(file, instances, document);
    } else {
        fillPart(file, product, document);
    }
}

void ProductTree::fillPart(File& file, const TDF_Label& product, ModelDocument& part) {
    const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(product);
    const std::string what =
        file.step.file.string() + ": part '" + utf8FromUtf16(productName(file.step, product)) + "'";
    PartMesh mesh = meshShape(shape, options_, what, model_.warnings);
    part.bodies = std::move(mesh.bodies);
    nameBodies(file.step, mesh, part.bodies);
    addPartLook(file.step, product, mesh, part);
    if (part.bodies.empty() && holdsCurves(shape)) {
        model_.warnings.push_back(what + " holds curves alone, which are not shown");
    }
}

void ProductTree::fillAssembly(File& file, const TDF_LabelSequence& instances, ModelDocument& assembly) {
    assembly.kind = DocumentKind::assembly;
    SiblingNames names;
    std::vector<std::u16string> wanted;
    for (const TDF_Label& instance : instances) {
        wanted.push_back(
            valueOr(file.step.instanceNames, instance, productName(file.step, productOf(instance))));
        names.reserve(wanted.back());
    }
    assembly.components.resize(wanted.size());
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const TDF_Label& instance = instances.Value(static_cast<Standard_Integer>(i) + 1);
        ComponentRecord& component = assembly.components[i];
        component.name = names.take(wanted[i]);
        component.placement = toPlacement(XCAFDoc_ShapeTool::GetLocation(instance).Transformation());
        component.document = documentOf(file, productOf(instance));
        file.componentNames.Bind(instance, component.name);
    }
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const TDF_Label& instance = instances.Value(static_cast<Standard_Integer>(i) + 1);
        if (XCAFDoc_ShapeTool::IsReference(instance)) {
            addInstanceLook(file.step, instance, file.componentNames, assembly.components[i], assembly);
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

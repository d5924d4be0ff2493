#pragma once

#include "model/records/ModelError.h"
#include "model/step/StepReader.h"
#include "model/step/StepText.h"
#include "platform/NarrowText.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRep_Builder.hxx>
#include <Interface_Static.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <STEPCAFControl_Controller.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Compound.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_GraphNode.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <gmock/gmock.h>
#include <gp_Ax1.hxx>
#include <gp_Trsf.hxx>

#include <array>
#include <chrono>
#include <cmath>
#include <fstream>
#include <functional>
#include <numbers>
#include <sstream>

/// Makes STEP files and tells what was read from them.
namespace orvane::step_maker {

namespace fs = std::filesystem;

/// A folder that goes with the test.
class StepReaderTest : public testing::Test {
protected:
    StepReaderTest() {
        fs::create_directories(folder);
        Message::DefaultMessenger()->ChangePrinters().Clear();
    }
    ~StepReaderTest() override { fs::remove_all(folder); }

    fs::path write(const std::string& name, const std::string& bytes) const {
        std::ofstream(folder / name, std::ios::binary) << bytes;
        return folder / name;
    }

    fs::path folder =
        fs::temp_directory_path() /
        ("orvane-step-" + std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()));
};

inline std::string contentOf(const fs::path& file) {
    std::ostringstream out;
    out << std::ifstream(file, std::ios::binary).rdbuf();
    return out.str();
}

inline std::string replaced(std::string text, const std::string& from, const std::string& to) {
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

inline gp_Trsf moved(double x, double y = 0, double z = 0) {
    gp_Trsf transform;
    transform.SetTranslation(gp_Vec(x, y, z));
    return transform;
}

inline TopoDS_Shape box(double x, double y, double z) {
    return BRepPrimAPI_MakeBox(x, y, z).Shape();
}

inline TopoDS_Shape compoundOf(const std::vector<TopoDS_Shape>& shapes) {
    BRep_Builder builder;
    TopoDS_Compound compound;
    builder.MakeCompound(compound);
    for (const TopoDS_Shape& shape : shapes) {
        builder.Add(compound, shape);
    }
    return compound;
}

inline TopoDS_Shape firstOf(const TopoDS_Shape& shape, TopAbs_ShapeEnum kind) {
    return TopExp_Explorer(shape, kind).Current();
}

/// A product structure that Open CASCADE writes. Shapes are in the unit of the file.
struct StepMaker {
    Handle(TDocStd_Document) document = new TDocStd_Document("Test");
    Handle(XCAFDoc_ShapeTool) shapes = XCAFDoc_DocumentTool::ShapeTool(document->Main());
    Handle(XCAFDoc_ColorTool) colors = XCAFDoc_DocumentTool::ColorTool(document->Main());

    StepMaker() { XCAFDoc_ShapeTool::SetAutoNaming(Standard_False); }

    TDF_Label named(const TDF_Label& label, const std::u16string& name) const {
        if (!name.empty()) {
            TDataStd_Name::Set(label, TCollection_ExtendedString(name.c_str()));
        }
        return label;
    }
    TDF_Label part(const std::u16string& name, const TopoDS_Shape& shape) const {
        return named(shapes->AddShape(shape, Standard_False), name);
    }
    TDF_Label assembly(const std::u16string& name) const {
        return named(shapes->AddShape(compoundOf({}), Standard_True), name);
    }
    TDF_Label place(const TDF_Label& parent, const TDF_Label& product, const std::u16string& name,
                    const gp_Trsf& at) const {
        return named(shapes->AddComponent(parent, product, TopLoc_Location(at)), name);
    }
    void paint(const TDF_Label& label, double red, double green, double blue, float alpha = 1) const {
        const Quantity_Color color(red / 255, green / 255, blue / 255, Quantity_TOC_sRGB);
        colors->SetColor(label, Quantity_ColorRGBA(color, alpha), XCAFDoc_ColorSurf);
    }

    /// With a `prefix` every part goes into a file of its own, whose name begins with it.
    fs::path save(const fs::path& file, const char* unit = "MM", const char* prefix = nullptr) const {
        shapes->UpdateAssemblies();
        STEPCAFControl_Controller::Init();
        Interface_Static::SetCVal("xstep.cascade.unit", unit); // no conversion: numbers go out as they stand
        Interface_Static::SetCVal("write.step.unit", unit);
        STEPCAFControl_Writer writer;
        const fs::path before = fs::current_path();
        fs::current_path(file.parent_path());
        EXPECT_TRUE(writer.Transfer(document, STEPControl_AsIs, prefix));
        EXPECT_EQ(writer.Write(file.string().c_str()), IFSelect_RetDone);
        fs::current_path(before);
        Interface_Static::SetCVal("xstep.cascade.unit", "MM");
        Interface_Static::SetCVal("write.step.unit", "MM");
        return file;
    }
};

inline fs::path saveShape(const fs::path& file, const TopoDS_Shape& shape, const char* unit = "MM") {
    StepMaker maker;
    maker.part(u"Thing", shape);
    return maker.save(file, unit);
}

inline Model read(const fs::path& file, const MeshingOptions& options = {}) {
    Model model;
    const ModelDocument* opened = step::readStepFile(file, options, model);
    EXPECT_EQ(opened, model.documents.front().get());
    return model;
}

inline std::string errorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const ModelError& error) {
        return error.what();
    }
    return "no error";
}

inline std::string errorOfReading(const fs::path& file) {
    return errorOf([&] { read(file); });
}

inline const ModelDocument& documentTitled(const Model& model, std::u16string_view title) {
    for (const auto& document : model.documents) {
        if (document->title == title) {
            return *document;
        }
    }
    throw std::runtime_error("no document " + toSystemNarrow(title));
}

/// `name(children) -> document`, all levels.
inline std::string treeOf(const std::vector<ComponentRecord>& components) {
    std::string out;
    for (const ComponentRecord& component : components) {
        out += out.empty() ? "" : " ";
        out += toSystemNarrow(component.name);
        if (component.document->kind == DocumentKind::assembly) {
            out += '(';
            out += treeOf(component.document->components);
            out += ')';
        }
    }
    return out;
}

inline std::vector<std::string> bodyNames(const ModelDocument& part) {
    std::vector<std::string> names;
    for (const BodyRecord& body : part.bodies) {
        names.push_back(toSystemNarrow(body.name));
    }
    return names;
}

struct BodyFacts {
    double volume = 0; ///< by the divergence theorem: positive where the triangles are turned outward
    std::array<double, 3> extent{}; ///< of the box
    double worstNormal = 1;         ///< smallest cosine between a corner's normal and its triangle's
    bool unitNormals = true;
    std::size_t triangles = 0;
};

inline BodyFacts factsOf(const BodyRecord& body) {
    BodyFacts facts;
    std::array<double, 3> low{};
    std::array<double, 3> high{};
    low.fill(1e9);
    high.fill(-1e9);
    for (const FaceRecord& face : body.faces) {
        EXPECT_EQ(face.normals.size(), face.positions.size());
        EXPECT_EQ(face.texCoords.size() * 3, face.positions.size() * 2);
        const auto vector = [](const std::vector<float>& numbers, std::size_t at) {
            return gp_XYZ(static_cast<double>(numbers[at]), static_cast<double>(numbers[at + 1]),
                          static_cast<double>(numbers[at + 2]));
        };
        for (std::size_t at = 0; at < face.positions.size(); at += 9) {
            const gp_XYZ a = vector(face.positions, at);
            const gp_XYZ b = vector(face.positions, at + 3);
            const gp_XYZ c = vector(face.positions, at + 6);
            const gp_XYZ plane = (b - a).Crossed(c - a).Normalized();
            facts.volume += a.Dot(b.Crossed(c)) / 6;
            ++facts.triangles;
            for (std::size_t corner = 0; corner < 9; corner += 3) {
                const gp_XYZ normal = vector(face.normals, at + corner);
                facts.worstNormal = std::min(facts.worstNormal, normal.Dot(plane));
                facts.unitNormals = facts.unitNormals && std::abs(normal.Modulus() - 1) < 1e-5;
                for (std::size_t axis = 0; axis < 3; ++axis) {
                    const auto value = static_cast<double>(face.positions[at + corner + axis]);
                    low[axis] = std::min(low[axis], value);
                    high[axis] = std::max(high[axis], value);
                }
            }
        }
    }
    for (std::size_t axis = 0; axis < 3; ++axis) {
        facts.extent[axis] = high[axis] - low[axis];
    }
    return facts;
}

/// `kind colour transparency entities`, one for each appearance.
inline std::vector<std::string> looksOf(const ModelDocument& document) {
    constexpr std::array<const char*, 5> kKinds = {"document", "body", "feature", "face", "component"};
    std::vector<std::string> looks;
    for (const AppearanceRecord& appearance : document.appearances) {
        EXPECT_TRUE(appearance.hasAppliedTo);
        std::ostringstream out;
        out << kKinds.at(static_cast<std::size_t>(appearance.appliedTo.front().kind)) << ' ' << std::hex
            << appearance.primaryColor << std::dec << ' ' << appearance.transparency;
        for (const EntityRecord& entity : appearance.appliedTo) {
            out << ' ' << entity.body << '/' << entity.face << toSystemNarrow(entity.component);
        }
        looks.push_back(out.str());
    }
    return looks;
}

} // namespace orvane::step_maker

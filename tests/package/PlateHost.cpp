#include "PlateHost.h"

#include <algorithm>

namespace {

using namespace orvane;

// What a program has in memory anyway: here two triangles, in metres.

struct Face {
    std::int32_t userValue = 0;
    std::vector<float> positions{0, 0, 0, 2, 0, 0, 2, 1, 0, 0, 0, 0, 2, 1, 0, 0, 1, 0};
    std::vector<float> normals{0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1};
    std::vector<float> texCoords{0, 0, 1, 0, 1, 1, 0, 0, 1, 1, 0, 1};
};

struct Body {
    std::u16string name = u"Plate";
    Face face;
};

struct Part {
    std::u16string title = u"plate.part";
    std::u16string path = u"C:\\parts\\plate.part";
    std::u16string configuration = u"Default";
    std::u16string displayState = u"Bare";
    Body body;
};

/// An object of the host that answers from `record`. Two answers for one record stand for the same thing.
template <class Role, class Record>
class Answer : public Role {
public:
    explicit Answer(Record& record) : record_(record) {}
    const void* identity() const noexcept override { return &record_; }

protected:
    Record& record_;
};

bool copyAll(const std::vector<float>& from, std::span<float> to) {
    if (from.size() != to.size()) {
        return false;
    }
    std::ranges::copy(from, to.begin());
    return true;
}

class PlateFace final : public Answer<HostFace, Face> {
public:
    using Answer::Answer;
    void faceTriangleCount(std::int32_t& count) const override {
        count = static_cast<std::int32_t>(record_.positions.size() / 9);
    }
    bool faceTrianglePositions(bool, std::span<float> positions) const override {
        return copyAll(record_.positions, positions);
    }
    bool faceTriangleNormals(std::span<float> normals) const override {
        return copyAll(record_.normals, normals);
    }
    bool faceTriangleTexCoords(std::span<float> texCoords) const override {
        return copyAll(record_.texCoords, texCoords);
    }
    HostRef<HostFeature> faceOwningFeature() const override { return {}; }
    std::int32_t readFaceMark() const override { return record_.userValue; }
    void writeFaceMark(std::int32_t mark) override { record_.userValue = mark; }
};

class PlateBody final : public Answer<HostBody, Body> {
public:
    using Answer::Answer;
    std::u16string bodyName() const override { return record_.name; }
    std::int32_t bodyFaceCount() const override { return 1; }
    std::vector<HostRef<HostFace>> bodyFaces(std::int32_t count) const override {
        std::vector<HostRef<HostFace>> faces;
        if (count > 0) {
            faces.push_back(makeHostObject<PlateFace>(record_.face));
        }
        return faces;
    }
};

class PlateBodies final : public Answer<HostBodyEnumerator, Part> {
public:
    using Answer::Answer;
    const void* identity() const noexcept override { return this; } // each counts for itself
    HostRef<HostBody> nextBody() override {
        if (isAtEnd_) {
            return {};
        }
        isAtEnd_ = true;
        return makeHostObject<PlateBody>(record_.body);
    }
    void reset() override { isAtEnd_ = false; }

private:
    bool isAtEnd_ = false;
};

/// Without one a document has no display states, and so no scene.
class PlateExtension final : public Answer<HostDocExtension, Part> {
public:
    using Answer::Answer;
    std::int32_t decalCount() const override { return 0; }
    std::vector<HostRef<HostDecal>> decals() const override { return {}; }
    std::int32_t annotationCount() const override { return 0; }
    std::vector<HostRef<HostAnnotation>> annotations() const override { return {}; }
    HostRef<HostObject> studyManagerObject() override { return {}; }
};

class PlateConfiguration final : public Answer<HostConfiguration, std::u16string> {
public:
    PlateConfiguration(Part& part) : Answer(part.configuration), part_(part) {}
    std::u16string getConfigurationName() const override { return part_.configuration; }
    std::vector<std::u16string> getDisplayStateNames() const override { return {part_.displayState}; }
    bool applyDisplayState(const std::u16string& name) override { return name == part_.displayState; }
    HostRef<HostComponent> getRootComponent() const override { return {}; }
    HostRef<HostCustomProperties> customProperties() const override { return {}; }
    std::int32_t countExplodeSteps() const override { return 0; }

private:
    Part& part_;
};

class PlateDocument final : public Answer<HostModelDoc, Part> {
public:
    using Answer::Answer;
    std::int32_t getDocumentType() const override { return kPartDocument; }
    std::u16string documentTitle() const override { return record_.title; }
    std::u16string documentPath() const override { return record_.path; }
    HostRef<HostPart> partInterface() override;
    HostRef<HostAssembly> assemblyInterface() override { return {}; }
    HostRef<HostDocExtension> extension() override { return makeHostObject<PlateExtension>(record_); }
    std::vector<HostRef<HostAppearance>> appearances() override { return {}; }
    HostRef<HostFeature> firstFeature() override { return {}; }
    HostRef<HostDesignTable> designTable() override { return {}; }

    HostRef<HostView> activeView() override { return {}; }
    void setActiveView(const HostRef<HostView>&) override {}
    std::int32_t countNamedViews() const override { return 0; }
    std::vector<std::u16string> listNamedViews(std::int32_t) const override { return {}; }
    void showNamedView(const std::u16string&) override {}

    std::int32_t countLights() const override { return 0; }
    std::u16string lightInternalName(std::int32_t) const override { return {}; }
    std::u16string lightUserName(std::int32_t) const override { return {}; }
    void lightProperties(std::int32_t, PackedData&) const override {}

    HostRef<HostConfiguration> getActiveConfiguration() override {
        return makeHostObject<PlateConfiguration>(record_);
    }
    std::optional<std::int32_t> getConfigurationCount() const override { return 1; }
    std::vector<std::u16string> getConfigurationNames() const override { return {record_.configuration}; }
    HostRef<HostConfiguration> getConfigurationByName(const std::u16string& name) override {
        return name == record_.configuration ? getActiveConfiguration() : HostRef<HostConfiguration>();
    }
    bool showConfiguration(const std::u16string& name) override { return name == record_.configuration; }
};

class PlatePart final : public Answer<HostPart, Part> {
public:
    using Answer::Answer;
    HostRef<HostModelDoc> getModelDoc() const override { return makeHostObject<PlateDocument>(record_); }
    HostRef<HostBodyEnumerator> enumerateBodies(std::int32_t bodyType, std::int16_t) const override {
        return bodyType == kSolidBody ? makeHostObject<PlateBodies>(record_) : HostRef<PlateBodies>();
    }
    std::optional<HostBox> partBox(std::int16_t) const override { return HostBox{0, 0, 0, 2, 1, 0}; }
};

HostRef<HostPart> PlateDocument::partInterface() {
    return makeHostObject<PlatePart>(record_);
}

class PlateApplication final : public HostApplication {
public:
    std::u16string revisionText() override { return u"28.0.1"; }
    HostRef<HostModelDoc> activeDocument() override { return makeHostObject<PlateDocument>(part_); }
    std::int32_t openDocumentCount() override { return 1; }
    std::vector<HostRef<HostModelDoc>> openDocuments() override { return {activeDocument()}; }
    std::u16string hostInstallFolder() override { return {}; }
    void registerTrackingId(const std::u16string&, std::int32_t&) override {}
    HostRef<HostMathUtility> mathUtility() override { return {}; }

private:
    Part part_;
};

} // namespace

orvane::HostRef<orvane::HostApplication> openPlateHost() {
    return makeHostObject<PlateApplication>();
}

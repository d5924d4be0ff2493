#include "embedded/EmbeddedMetadata.h"
#include "embedded/EmbeddedObject.h"
#include "embedded/HostAnswers.h"

namespace orvane::embedded {

namespace {

class EmbeddedCustomProperties final : public EmbeddedObject<HostCustomProperties, ConfigurationRecord> {
public:
    using EmbeddedObject::EmbeddedObject;

    std::int32_t propertyCount() const override { return countOf(record_.customProperties); }
    std::vector<HostCustomProperty> properties() const override {
        std::vector<HostCustomProperty> properties;
        properties.reserve(record_.customProperties.size());
        for (const CustomPropertyRecord& record : record_.customProperties) {
            properties.push_back({record.name, record.value, record.type});
        }
        return properties;
    }
};

} // namespace

HostRef<HostCustomProperties> makeCustomProperties(const SessionRef& session,
                                                   const ConfigurationRecord& configuration) {
    return makeHostObject<EmbeddedCustomProperties>(session, configuration);
}

} // namespace orvane::embedded

#pragma once

#include "control/property_bag.h"

#include <QSettings>

namespace morvel::app {

// The designer's persisted settings ("CME") kept in the application's QSettings, in the group
// "Designer". A setting equal to its default is removed rather than written.
class SettingsPropertyBag : public control::PropertyBag {
public:
    Value ReadProperty(std::string_view name, const Value& defaultValue) const override;
    void WriteProperty(std::string_view name, const Value& value,
                       const Value& defaultValue) override;

private:
    static QString keyOf(std::string_view name);
    mutable QSettings m_settings;
};

} // namespace morvel::app

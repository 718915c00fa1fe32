#include "settings_property_bag.h"

namespace morvel::app {

QString SettingsPropertyBag::keyOf(std::string_view name) {
    return QStringLiteral("Designer/") +
           QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

Value SettingsPropertyBag::ReadProperty(std::string_view name, const Value& defaultValue) const {
    const QVariant stored = m_settings.value(keyOf(name));
    if (!stored.isValid())
        return defaultValue;
    switch (defaultValue.kind()) {
    case Value::Kind::Boolean:
        return stored.toBool();
    case Value::Kind::Long:
        return static_cast<std::int32_t>(stored.toInt());
    default:
        return stored.toString().toStdString();
    }
}

void SettingsPropertyBag::WriteProperty(std::string_view name, const Value& value,
                                        const Value& defaultValue) {
    if (value == defaultValue) {
        m_settings.remove(keyOf(name));
        return;
    }
    switch (value.kind()) {
    case Value::Kind::Boolean:
        m_settings.setValue(keyOf(name), value.asBoolean());
        return;
    case Value::Kind::Empty:
        m_settings.remove(keyOf(name));
        return;
    default:
        m_settings.setValue(keyOf(name), QString::fromStdString(value.toText()));
    }
}

} // namespace morvel::app

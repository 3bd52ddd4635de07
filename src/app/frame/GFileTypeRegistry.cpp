#include "app/frame/GFileTypeRegistry.h"

#include "app/addons/GFileAssociationHandler.h"

#include <algorithm>
#include <QObject>

void GFileTypeRegistry::setFileAssociationHandler(GFileAssociationHandler *handler)
{
    m_handler = handler;
}

void GFileTypeRegistry::registerType(const QString &name, const QString &extension,
                                     const QString &description, const QString &icon, bool readable,
                                     bool writable, bool associate, const QMetaObject &windowClass)
{
    m_types.push_back(std::make_unique<GFileType>(
        GFileType{name, description, extension, icon, readable, writable, &windowClass}));
    if (associate && m_handler)
        m_handler->registerFileType(name, extension, description, icon);
}

const GFileType *GFileTypeRegistry::defaultFileType() const
{
    return m_types.empty() ? nullptr : m_types.front().get();
}

const GFileType *GFileTypeRegistry::typeForFileName(const QString &name) const
{
    const QString upperName = name.toUpper();
    const auto matches = [&](const std::unique_ptr<GFileType> &type) {
        return upperName.endsWith(type->extension.toUpper());
    };
    const auto found = std::find_if(m_types.cbegin(), m_types.cend(), matches);
    return found == m_types.cend() ? nullptr : found->get();
}

const GFileType *GFileTypeRegistry::typeOrDefault(const QString &name) const
{
    const GFileType *type = typeForFileName(name);
    return type ? type : defaultFileType();
}

KeyValueList<QString> GFileTypeRegistry::getReadExtensions() const
{
    KeyValueList<QString> extensions;
    for (const auto &type : m_types) {
        if (type->readable)
            extensions.append({type->extension, type->description});
    }
    return extensions;
}

KeyValueList<QString> GFileTypeRegistry::getWriteExtensions(const QObject *window) const
{
    const QString windowClass = QString::fromLatin1(window->metaObject()->className());
    KeyValueList<QString> extensions;
    for (const auto &type : m_types) {
        if (type->writable && type->windowClassName() == windowClass)
            extensions.append({type->extension, type->description});
    }
    return extensions;
}

GFileTypeRegistry &theFileTypeRegistry()
{
    static GFileTypeRegistry registry;
    return registry;
}

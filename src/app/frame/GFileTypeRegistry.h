#pragma once

#include "app/frame/GFileType.h"
#include "app/frame/KeyValueList.h"

#include <memory>
#include <vector>

class GFileAssociationHandler;

/** The kinds of documents that the program opens. Main thread only. */
class GFileTypeRegistry
{
public:
    /** The desktop is told of types registered from now on; @p handler must outlive the calls. */
    void setFileAssociationHandler(GFileAssociationHandler *handler);

    /**
     * Adds a type whose documents end in @p extension (with its dot) and are
     * shown by windows of @p windowClass, which must live as long as the registry.
     */
    void registerType(const QString &name, const QString &extension, const QString &description,
                      const QString &icon, bool readable, bool writable, bool associate,
                      const QMetaObject &windowClass);

    /** The type registered first; null when there is none. */
    const GFileType *defaultFileType() const;

    /** The first type whose extension ends @p name, whatever the case; null when none does. */
    const GFileType *typeForFileName(const QString &name) const;

    /** typeForFileName(), else defaultFileType(). */
    const GFileType *typeOrDefault(const QString &name) const;

    /** Extension and description of what can be read. */
    KeyValueList<QString> getReadExtensions() const;

    /** Extension and description of what windows of @p window's class can write. */
    KeyValueList<QString> getWriteExtensions(const QObject *window) const;

private:
    std::vector<std::unique_ptr<GFileType>> m_types;
    GFileAssociationHandler *m_handler = nullptr;
};

/** The registry of this process. */
GFileTypeRegistry &theFileTypeRegistry();

#pragma once

#include "properties/core/PropertyStruct.h"
#include "properties/presets/PropertyPresetCollection.h"

#include <future>
#include <memory>
#include <QCoreApplication>

class GUndoStack;

/** The root of a document: a struct that owns the undo stack and is its own project. */
class GProject : public PropertyStruct
{
    Q_DECLARE_TR_FUNCTIONS(GProject)

public:
    GProject(const QString &name, const QList<PropertyDescription *> &descriptions);
    ~GProject() override;

    void acceptVisitor(PropertyVisitor *visitor) override;

    GUndoStack *undoStack() const { return m_undoStack.get(); }

    /**
     * Lets another thread read all values until @p done is ready: whoever is about to
     * change one waits for that. It must become ready without the thread of this call.
     */
    void letRead(const std::shared_future<void> &done) { m_read = done; }

    /** Comes ahead of every change of a value; waits for a thread that reads. */
    void beforeChange()
    {
        if (m_read.valid())
            waitForReader();
    }

    /** The child "preset_collections". */
    PropertyListT<PropertyPresetCollection> *presetCollections() const;

    /** Throws ErrorDoesNotExist when there is no collection of this type. */
    PropertyPresetCollection *presetCollectionByName(const QString &typeName) const;

private:
    void waitForReader();

    std::shared_future<void> m_read;
    // Goes before the children do, since its commands point to them.
    std::unique_ptr<GUndoStack> m_undoStack;
    PropertyListT<PropertyPresetCollection> *m_presetCollections;
};

#pragma once

#include "properties/undo/GenericUndoCommand.h"
#include "properties/undo/MacroBlock.h"

#include <QHash>
#include <QList>
#include <QUndoStack>

class Observable;

/**
 * The road of all edits of a document and the keeper of its clean state. Commands
 * that don't touch the data model leave the document clean; macros dirty it.
 *
 * It holds no more than so many steps and commands; a document that forgotten ones
 * have changed stays modified until it is saved.
 */
class GUndoStack : public QUndoStack
{
    Q_OBJECT

public:
    /** Beyond these the oldest steps are forgotten. */
    static constexpr int MaximumSteps = 100;
    /** Those within macros count; beyond them a new step makes all others forgotten. */
    static constexpr int MaximumCommands = 20000;

    GUndoStack();

    void push(QUndoCommand *command);
    void beginMacro(const QString &text);

    /**
     * Has @p setter called with @p newValue, undoably; nothing happens when the
     * values are equal. Edits that chain collapse into one step if @p mergeable.
     */
    template <class Object, class Value>
    void push(Object *object, void (Object::*setter)(const Value &), const Value &oldValue,
              const Value &newValue, const QString &text, bool mergeable, bool modifiesDataModel)
    {
        if (newValue == oldValue)
            return;
        using Command = GenericUndoCommand<Object, void (Object::*)(const Value &), Value>;
        const int id = mergeable ? int(qHash(object)) : -1;
        push(new Command(object, setter, oldValue, newValue, text, id, modifiesDataModel));
    }

    /** Begins a macro that the returned guard ends. */
    MacroBlock createMacroBlock(const QString &text);

    /** Begins a macro; announcements of @p observables wait for its end. */
    void beginMacroAndDeferAnnouncements(const QString &text,
                                         const QList<const Observable *> &observables);

    /** Begins a macro; all announcements wait for its end. */
    void beginMacroAndDeferAllAnnouncements(const QString &text);

    /** Delivers the announcements that waited, then ends the macro. */
    void endMacroAndExecuteAnnouncements();

    /** Undoes the last command and forgets it: there is nothing to redo afterwards. */
    void rollbackLastCommand();

    /** Whether no command since the clean state has changed the data model. */
    bool isClean() const;

private:
    void makeRoom();
};

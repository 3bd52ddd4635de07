#pragma once

#include "catalogue/records/Project.h"

#include <memory>
#include <optional>
#include <QByteArray>
#include <QHash>
#include <string_view>
#include <utility>
#include <vector>

/**
 * Reads the records of a catalogue that are in the form that the program itself writes:
 * many times as fast as XML of any form can be read, since nothing has to be found out. It
 * takes all of them or none, and whoever asks reads the whole file as XML then.
 */
class WrittenRecords
{
public:
    explicit WrittenRecords(Project *project) : m_project(project) {}

    /**
     * The file without the records that were read from it, for the XML reader; nothing when
     * any record, or what is around them, has another form.
     */
    std::optional<QByteArray> takeFrom(const QByteArray &file);

    /** Behind the start of the records' element in what takeFrom() returned, in characters. */
    int placeOfRecords() const { return m_place; }

    /** Those that were read, in the order of the file. */
    std::vector<std::unique_ptr<Property>> takeRecords() { return std::move(m_records); }

private:
    void readRecord();
    void readThread(QList<QSharedPointer<IThread>> &threads);
    void readTags(File &file);

    // After the first of these that finds something else than it expects, all do nothing.
    bool skip(std::string_view expected);
    void expect(std::string_view expected);
    bool beginElement(std::string_view name);
    QByteArray element(std::string_view name);
    QString text(std::string_view name);
    QString sharedText(std::string_view name);
    QByteArray plainElement(std::string_view name);
    double attribute(std::string_view name);
    void skipBlanks();
    QByteArray bytesOfText();
    QString decoded(const QByteArray &bytes);

    Project *m_project;
    const char *m_here = nullptr;
    const char *m_end = nullptr;
    bool m_failed = false;
    int m_place = 0;
    std::vector<std::unique_ptr<Property>> m_records;
    QHash<QByteArray, QString> m_sharedTexts;
};

// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// Loading and saving documents.

#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>
#include <QTemporaryDir>

#include <benchmarks/baretree.h>
#include <benchmarks/paired.h>
#include <benchmarks/rows.h>
#include <benchmarks/shownfish.h>

namespace {

/** A document in a file of a folder of its own. */
class DocumentFile
{
public:
    DocumentFile(Synthetic::Shape shape, int count)
        : m_document(Synthetic::makeDocument(shape, count))
    {
        QFile file(name());
        file.open(QIODevice::WriteOnly);
        file.write(m_document);
    }

    QString name(const char *base = "document.json") const
    {
        return m_folder.filePath(QLatin1String(base));
    }
    const QByteArray &content() const { return m_document; }

private:
    QTemporaryDir m_folder;
    QByteArray m_document;
};

/** A file into the model, against the file into a tree of plain structs. */
class Loading : DocumentFile
{
public:
    using DocumentFile::DocumentFile;

    double ours() const
    {
        FishModel model;
        return Paired::secondsOf([&] { model.loadFishFromFile(name()); });
    }

    double bare() const
    {
        std::unique_ptr<BareNode> head;
        return Paired::secondsOf([&] {
            QFile file(name());
            file.open(QIODevice::ReadOnly);
            head = bareTreeFrom(QJsonDocument::fromJson(file.readAll()).object());
        });
    }
};

/** The model into a file, against the structs into a file that is replaced in the same way. */
class Saving : DocumentFile
{
public:
    Saving(Synthetic::Shape shape, int count)
        : DocumentFile(shape, count)
        , m_head(bareTreeFrom(QJsonDocument::fromJson(content()).object()))
        , m_info(m_model.loadJsonFish(content()))
    {
    }

    double ours()
    {
        return Paired::secondsOf([&] { m_info->saveFile(name("ours.json")); });
    }

    double bare() const
    {
        return Paired::secondsOf([&] {
            QSaveFile file(name("bare.json"));
            file.open(QIODevice::WriteOnly);
            file.write(QJsonDocument(jsonOf(*m_head)).toJson());
            file.commit();
        });
    }

private:
    std::unique_ptr<BareNode> m_head;
    FishModel m_model;
    FishInfo *m_info;
};

} // namespace

void addRows()
{
    Paired::addRow<Loading>("G1 load");
    Paired::addRow<Saving>("G2 save");
}

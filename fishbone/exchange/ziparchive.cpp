// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/ziparchive.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/importedtree.h>

#include <zip.h>

#include <memory>

namespace {

constexpr qint64 mebibyte = 1 << 20;

struct CloseFile
{
    void operator()(zip_file_t *file) const { zip_fclose(file); }
};

/** A source in memory that lives as long as this. */
class Source
{
    Q_DISABLE_COPY(Source)

public:
    explicit Source(const QByteArray &bytes)
        : m_source(zip_source_buffer_create(bytes.isEmpty() ? nullptr : bytes.constData(),
                                            zip_uint64_t(bytes.size()), 0, nullptr))
    {
        if (m_source)
            zip_source_keep(m_source);
    }
    ~Source()
    {
        if (m_source)
            zip_source_free(m_source);
    }

    zip_source_t *get() const { return m_source; }

    /** All bytes that were written to it. */
    QByteArray content() const
    {
        zip_stat_t stat;
        zip_stat_init(&stat);
        if (zip_source_stat(m_source, &stat) != 0 || zip_source_open(m_source) != 0)
            return QByteArray();
        QByteArray bytes(int(stat.size), '\0');
        const zip_int64_t count = zip_source_read(m_source, bytes.data(), stat.size);
        zip_source_close(m_source);
        return count == zip_int64_t(stat.size) ? bytes : QByteArray();
    }

private:
    zip_source_t *const m_source;
};

bool addFile(zip_t *archive, const ZipWriter::File &file)
{
    // An empty file has no buffer, which is fine.
    zip_source_t *const source =
        zip_source_buffer(archive, file.second.constData(), zip_uint64_t(file.second.size()), 0);
    if (!source)
        return false;
    const zip_int64_t index =
        zip_file_add(archive, file.first.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8);
    if (index < 0) {
        zip_source_free(source);
        return false;
    }
    constexpr zip_uint16_t firstDay = 0x21; // 1 January 1980: the same files make the same bytes
    return zip_file_set_dostime(archive, zip_uint64_t(index), 0, firstDay, 0) == 0;
}

} // namespace

ZipReader::ZipReader(const QByteArray &bytes, ImportedTree &tree)
    : m_bytes(bytes)
    , m_tree(tree)
{
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t *const source =
        zip_source_buffer_create(m_bytes.constData(), zip_uint64_t(m_bytes.size()), 0, &error);
    // Nothing at all would be an archive without files.
    m_zip =
        source && !m_bytes.isEmpty() ? zip_open_from_source(source, ZIP_RDONLY, &error) : nullptr;
    if (!m_zip) {
        m_tree.fail(DiagramExchange::tr("it is not a zip archive, as files of this format are (%1)")
                        .arg(QString::fromUtf8(zip_error_strerror(&error))));
        zip_source_free(source);
    } else if (!readNames()) {
        zip_discard(m_zip);
        m_zip = nullptr;
    }
    zip_error_fini(&error);
}

ZipReader::~ZipReader()
{
    if (m_zip)
        zip_discard(m_zip);
}

bool ZipReader::readNames()
{
    const zip_int64_t count = zip_get_num_entries(m_zip, 0);
    if (count > maximalEntries)
        return m_tree.fail(
            DiagramExchange::tr("the archive has more than %1 files").arg(maximalEntries));
    for (int i = 0; i < int(count); ++i) {
        const QString name = QString::fromUtf8(zip_get_name(m_zip, zip_uint64_t(i), 0));
        if (m_indexes.contains(name))
            return m_tree.fail(DiagramExchange::tr("the archive has \"%1\" twice").arg(name));
        m_indexes.insert(name, i);
        m_names.append(name);
    }
    return true;
}

std::optional<QByteArray> ZipReader::file(const QString &name)
{
    const auto index = m_indexes.constFind(name);
    return index == m_indexes.constEnd() ? std::nullopt : readEntry(name, *index);
}

std::optional<QByteArray> ZipReader::fail(const QString &name, const QString &reason)
{
    m_tree.fail(QStringLiteral("%1: %2").arg(name, reason));
    return std::nullopt;
}

std::optional<QByteArray> ZipReader::readEntry(const QString &name, int index)
{
    zip_stat_t stat;
    zip_stat_init(&stat);
    const std::unique_ptr<zip_file_t, CloseFile> file(
        zip_fopen_index(m_zip, zip_uint64_t(index), 0));
    if (!file || zip_stat_index(m_zip, zip_uint64_t(index), 0, &stat) != 0)
        return fail(name, QString::fromUtf8(zip_strerror(m_zip)));
    const qint64 packed = qMax<qint64>(qint64(stat.comp_size), 1);
    QByteArray bytes;
    QByteArray piece(int(mebibyte), '\0');
    for (;;) {
        const zip_int64_t count = zip_fread(file.get(), piece.data(), zip_uint64_t(piece.size()));
        if (count < 0)
            return fail(name, DiagramExchange::tr("it is damaged"));
        if (count == 0)
            return bytes;
        bytes.append(piece.constData(), int(count));
        m_sum += count;
        if (bytes.size() > maximalFile || m_sum > maximalSum)
            return fail(name, DiagramExchange::tr("it is too large"));
        if (bytes.size() > mebibyte && bytes.size() / packed > maximalRatio)
            return fail(
                name,
                DiagramExchange::tr("it expands to more than %1 times its size").arg(maximalRatio));
    }
}

QByteArray ZipWriter::archive(const std::vector<File> &files)
{
    const Source target{QByteArray()};
    zip_t *const archive = zip_open_from_source(target.get(), ZIP_TRUNCATE, nullptr);
    if (!archive)
        return QByteArray();
    for (const File &file : files) {
        if (!addFile(archive, file)) {
            zip_discard(archive);
            return QByteArray();
        }
    }
    if (zip_close(archive) != 0) {
        zip_discard(archive);
        return QByteArray();
    }
    return target.content();
}

#pragma once

#include <QImage>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>
#include <memory>

/// Why something is not attached.
enum class Refusal { None, TooLarge, TooMany, Folder, Unreadable, Empty, Twice };

/// A file that the user wants to attach, or why it cannot be.
struct AttachmentFile {
    static constexpr qint64 MostBytes = 50 * 1024 * 1024;

    QString path;
    QString name;     ///< as it may be shown: what hides or turns other characters is replaced
    QString identity; ///< the same for the same file, however it was named
    qint64 size = 0;
    Refusal refusal = Refusal::None;
    std::shared_ptr<QTemporaryDir> folder; ///< of a picture that exists nowhere else; goes with its last user

    /// Files that could not be looked at.
    static QVector<AttachmentFile> Unreadable(const QStringList& paths);

    /// Looks at files. Worker threads.
    static QVector<AttachmentFile> Inspect(const QStringList& paths);

    /// Writes a picture into a folder of its own below `tempFolder`, under this name. Worker threads.
    static QVector<AttachmentFile> Save(const QImage& picture, const QString& name,
                                        const QString& tempFolder);
};

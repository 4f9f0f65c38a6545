// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef DURABLEFILE_H
#define DURABLEFILE_H

#include "base/filarixhostglobal.h"

#include <QByteArray>
#include <QString>

#include <functional>

/// Writes a file as a whole. What stood at the path stays there until the new bytes are on the
/// disk; then they take its name in one step. Whenever the power goes, one of the two is there.
///
/// The new file has the permissions of the one that it replaces, and its owner where the system
/// allows that. A path that is a link stays one: what it leads to is replaced.
///
///     DurableFile file(path);
///     if (!file.open() || !file.write(bytes) || !file.commit())
///         tell(file.errorString());
class FILARIX_HOST_EXPORT DurableFile
{
public:
    explicit DurableFile(const QString &path);
    /// Removes a new file that was not committed.
    ~DurableFile();

    /// Makes the new file beside the path, hidden. The file gets the permissions and the owner of
    /// \a model, if that is there. Without a model it gets those of what stands at the path.
    bool open(const QString &model = QString());
    bool isOpen() const { return m_handle >= 0; }
    /// Appends to the new file; false when that fails, and without an open() that succeeded.
    bool write(const QByteArray &bytes);
    /// Forces the bytes to the disk, asks \a mayReplace, and gives the file its name. After that
    /// question nothing prevents the new name any more. To be called once for each file, which is
    /// closed then.
    bool commit(const std::function<bool()> &mayReplace = std::function<bool()>());
    /// Drops the new file.
    void cancel();
    /// Whether the new file has its name; also when it is not certain that the disk has, and
    /// commit() failed for that.
    bool hasReplaced() const { return m_hasReplaced; }

    /// The path that is written to.
    QString path() const { return m_path; }
    /// The path of the new file, while there is one; empty otherwise.
    QString temporaryPath() const { return m_temporaryPath; }
    /// Why the last call failed, in the system's words: "No space left on device". Empty when
    /// mayReplace said no.
    QString errorString() const;

    /// Forces the names in \a folder to the disk. False, with the reason in errno, when the system
    /// refuses.
    static bool syncFolder(const QString &folder);
    /// Whether \a name is one that open() makes: left behind by a program that was killed, unless
    /// another one writes just now.
    static bool isTemporary(const QString &name);

private:
    Q_DISABLE_COPY(DurableFile)

    bool fail();

    QString m_path;
    QString m_temporaryPath;
    int m_handle = -1;
    int m_error = 0;
    bool m_hasReplaced = false;
};

#endif // DURABLEFILE_H

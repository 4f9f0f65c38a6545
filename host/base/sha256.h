// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SHA256_H
#define SHA256_H

#include <QByteArray>

/// The checksum SHA-256 of bytes that come in pieces. Qt 5's QCryptographicHash gives the same one;
/// Qt 4.8 has none of that length.
///
///     Sha256 sum;
///     while (readPiece(&piece))
///         sum.addData(piece);
///     if (sum.result() != expected)
///         tellThatTheFileIsDamaged();
class Sha256
{
public:
    /// Bytes of a checksum.
    static const int size = 32;

    Sha256();

    void addData(const QByteArray &bytes) { addData(bytes.constData(), bytes.size()); }
    /// \a length in bytes.
    void addData(const char *bytes, int length);
    /// The checksum of all bytes so far. More may follow.
    QByteArray result() const;

    static QByteArray hash(const QByteArray &bytes);

private:
    static const int blockSize = 64;

    void addBlock(const uchar *block);

    quint32 m_state[8];
    uchar m_rest[blockSize];
    int m_restSize = 0;
    quint64 m_length = 0;
};

#endif // SHA256_H

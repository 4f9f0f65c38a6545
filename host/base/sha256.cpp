// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "base/sha256.h"

#include <QtEndian>

#include <cstring>

namespace {

// The fractional parts of the cube roots of the first 64 primes, as the standard has them.
const quint32 roundWords[64] = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2,
};

// The same of the square roots of the first 8 primes.
const quint32 startWords[8] = {
    0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a, 0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19,
};

inline quint32 turned(quint32 word, int bits)
{
    return (word >> bits) | (word << (32 - bits));
}

} // namespace

const int Sha256::size;

Sha256::Sha256()
{
    std::memcpy(m_state, startWords, sizeof m_state);
}

QByteArray Sha256::hash(const QByteArray &bytes)
{
    Sha256 sum;
    sum.addData(bytes);
    return sum.result();
}

void Sha256::addData(const char *bytes, int length)
{
    m_length += quint64(length);
    const uchar *from = reinterpret_cast<const uchar *>(bytes);
    if (m_restSize > 0) {
        const int taken = qMin(length, blockSize - m_restSize);
        std::memcpy(m_rest + m_restSize, from, size_t(taken));
        m_restSize += taken;
        from += taken;
        length -= taken;
        if (m_restSize < blockSize)
            return;
        addBlock(m_rest);
        m_restSize = 0;
    }
    for (; length >= blockSize; length -= blockSize, from += blockSize)
        addBlock(from);
    if (length > 0)
        std::memcpy(m_rest, from, size_t(length));
    m_restSize = length;
}

/// A one, zeros up to the end of a block, and the length in bits in its last eight bytes.
QByteArray Sha256::result() const
{
    Sha256 whole = *this;
    QByteArray end(1, char(0x80));
    const int used = (m_restSize + 1) % blockSize;
    const int lengthAt = blockSize - int(sizeof m_length);
    end += QByteArray((used <= lengthAt ? lengthAt : lengthAt + blockSize) - used, '\0');
    uchar bits[sizeof m_length];
    qToBigEndian<quint64>(m_length * 8, bits);
    end += QByteArray(reinterpret_cast<const char *>(bits), int(sizeof bits));
    whole.addData(end);
    QByteArray sum(size, '\0');
    for (int i = 0; i < 8; ++i)
        qToBigEndian<quint32>(whole.m_state[i],
                              reinterpret_cast<uchar *>(sum.data()) + size_t(4) * i);
    return sum;
}

void Sha256::addBlock(const uchar *block)
{
    quint32 words[64];
    for (int i = 0; i < 16; ++i)
        words[i] = qFromBigEndian<quint32>(block + size_t(4) * i);
    for (int i = 16; i < 64; ++i) {
        const quint32 before = words[i - 15];
        const quint32 last = words[i - 2];
        words[i] = words[i - 16] + (turned(before, 7) ^ turned(before, 18) ^ (before >> 3))
                   + words[i - 7] + (turned(last, 17) ^ turned(last, 19) ^ (last >> 10));
    }
    quint32 a = m_state[0], b = m_state[1], c = m_state[2], d = m_state[3];
    quint32 e = m_state[4], f = m_state[5], g = m_state[6], h = m_state[7];
    for (int i = 0; i < 64; ++i) {
        const quint32 first = h + (turned(e, 6) ^ turned(e, 11) ^ turned(e, 25))
                              + ((e & f) ^ (~e & g)) + roundWords[i] + words[i];
        const quint32 second =
            (turned(a, 2) ^ turned(a, 13) ^ turned(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
        h = g;
        g = f;
        f = e;
        e = d + first;
        d = c;
        c = b;
        b = a;
        a = first + second;
    }
    const quint32 words8[8] = {a, b, c, d, e, f, g, h};
    for (int i = 0; i < 8; ++i)
        m_state[i] += words8[i];
}

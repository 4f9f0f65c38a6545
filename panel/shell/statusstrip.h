// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STATUSSTRIP_H
#define STATUSSTRIP_H

#include "base/message.h"
#include "look/glyphs.h"
#include "stick/devicewatch.h"

#include <QLabel>
#include <QTimer>

class PlcTransfer;

/// A drawing and a word beside it: the state of one thing.
class StatusItem : public QLabel
{
    Q_OBJECT

public:
    explicit StatusItem(Glyphs::Glyph glyph, QWidget *parent = nullptr);

    void setGlyph(Glyphs::Glyph glyph);
    /// \a meaning says it in full, for operators who have the panel read to them.
    void set(const QString &word, Message::Tone tone, const QString &meaning);
    /// The same for what is not known, or not there and need not be.
    void setToneless(const QString &word, const QString &meaning);
    /// Is never narrower than the \a usual words ask for in letters of any size. Where there is
    /// room, the same goes for the \a rare ones. So a word that is followed by another moves
    /// nothing beside it.
    void keepRoomFor(const QStringList &usual, const QStringList &rare);
    bool hasTone() const { return m_hasTone; }
    /// Means something only where there is one.
    Message::Tone tone() const { return m_tone; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSize withRoomFor(const QStringList &words, const QSize &least) const;

    Glyphs::Glyph m_glyph;
    QStringList m_usual;
    QStringList m_rare;
    Message::Tone m_tone = Message::Information;
    bool m_hasTone = false;
};

/// The state of the program, of the PLC, of the stick and of the storage, and the clock, in one
/// line.
///
/// Each state is told by a word and by a colour. What is not known is a dash.
class StatusStrip : public QWidget
{
    Q_OBJECT

public:
    enum Plc { PlcUnknown, PlcReady, PlcAway, PlcSending, PlcFailed };
    enum Check { CheckUnknown, Checked };
    enum Storage { StorageUnknown, StorageAmple, StorageLow, StorageFull };

    /// Where there is room, a \a roomy one names the things, and its clock shows seconds.
    explicit StatusStrip(bool roomy, QWidget *parent = nullptr);

    /// Shows how that transfer goes. The transfer must outlive the strip or be disconnected.
    void follow(const PlcTransfer *transfer);

    Plc plc() const;
    Storage storage() const { return storageOf(m_devices.freeBytes); }
    /// Low when the import manager could no longer fill the program directory, full when no
    /// program of a usual size can be stored.
    static Storage storageOf(qint64 freeBytes);
    /// "12 GB": that much room, not negative, for an operator.
    static QString roomText(qint64 bytes);

    /// What the check says of the program. Nothing is shown of it before the first call. A strip
    /// that is not roomy shows faults alone, in the place of the clock.
    void showCheck(Check check, int errors, int warnings);
    /// A brief strip keeps to the check and the PLC, for as long as something else needs its room.
    void setBrief(bool isBrief);
    /// A roomy strip leaves the names away for as long as something else needs their room.
    void setNamed(bool isNamed);

Q_SIGNALS:
    /// The operator touched what the strip shows of the check.
    void checkTouched();

public Q_SLOTS:
    void showDevices(const DeviceState &state);

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void noteProgress(int percent);
    void noteEnd(bool failed);
    void noteFailure(bool isPlcAtFault);
    void noteStop();
    void showAll();
    void keepRoom();
    void showCheck();
    void showPlc();
    void showStick();
    void showStorage();
    bool isOnCheck(const QPoint &point) const;
    void tick();
    QString named(const QString &name, const QString &word) const;

    const bool m_roomy;
    DeviceState m_devices;
    bool m_isKnown = false;
    bool m_isBrief = false;
    bool m_isNamed = true;
    bool m_isCheckTold = false;
    Check m_checkState = CheckUnknown;
    int m_errors = 0;
    int m_warnings = 0;
    int m_percent = -1;
    bool m_hasFailed = false;
    StatusItem *m_check;
    StatusItem *m_plc;
    StatusItem *m_stick;
    StatusItem *m_storage;
    QLabel *m_clock;
    QTimer m_clockTimer;
};

#endif // STATUSSTRIP_H

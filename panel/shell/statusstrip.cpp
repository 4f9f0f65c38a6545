// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/statusstrip.h"

#include "look/look.h"
#include "look/measures.h"
#include "programs/plctransfer.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTime>

namespace {

const int fontPixels = 12;
const int glyphSide = 14;
const int glyphGap = 3;
const int itemGap = 7;
const int secondMs = 1000;
const qint64 megabyte = qint64(1024) * 1024;
const qint64 lowBytes = 30 * megabyte;
const qint64 fullBytes = megabyte;

QString dash()
{
    return QString::fromUtf8("\u2013");
}

QFont lineFont(QFont font)
{
    font.setPixelSize(fontPixels);
    font.setBold(false);
    return font;
}

} // namespace

StatusItem::StatusItem(Glyphs::Glyph glyph, QWidget *parent) : QLabel(parent), m_glyph(glyph)
{
    setFont(lineFont(font()));
    setTextFormat(Qt::PlainText);
    setContentsMargins(glyphSide + glyphGap, 0, 0, 0);
}

void StatusItem::setGlyph(Glyphs::Glyph glyph)
{
    m_glyph = glyph;
    update();
}

void StatusItem::keepRoomFor(const QStringList &usual, const QStringList &rare)
{
    m_usual = usual;
    m_rare = rare;
    updateGeometry();
}

QSize StatusItem::withRoomFor(const QStringList &words, const QSize &least) const
{
    int widest = 0;
    for (const QString &word : words)
        widest = qMax(widest, fontMetrics().horizontalAdvance(word));
    // A label takes what is drawn of a letter beyond its own width, too.
    return least.expandedTo(QSize(glyphSide + glyphGap + widest + 1, 0));
}

QSize StatusItem::sizeHint() const
{
    return withRoomFor(m_rare, minimumSizeHint());
}

QSize StatusItem::minimumSizeHint() const
{
    return withRoomFor(m_usual, QLabel::sizeHint());
}

void StatusItem::set(const QString &word, Message::Tone tone, const QString &meaning)
{
    setToneless(word, meaning);
    m_tone = tone;
    m_hasTone = true;
}

void StatusItem::setToneless(const QString &word, const QString &meaning)
{
    setText(word);
    setAccessibleName(meaning);
    m_hasTone = false;
    update();
}

void StatusItem::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    QPainter painter(this);
    const QColor colour = m_hasTone ? Look::onStrip(m_tone) : Look::stripText();
    Glyphs::draw(m_glyph, &painter, QRect(0, (height() - glyphSide) / 2, glyphSide, glyphSide),
                 colour);
}

StatusStrip::StatusStrip(bool roomy, QWidget *parent)
    : QWidget(parent)
    , m_roomy(roomy)
    , m_check(new StatusItem(Glyphs::Check))
    , m_plc(new StatusItem(Glyphs::Plc))
    , m_stick(new StatusItem(Glyphs::Stick))
    , m_storage(new StatusItem(Glyphs::Storage))
    , m_clock(new QLabel)
{
    m_check->setObjectName(QLatin1String("checkState"));
    m_check->hide();
    m_plc->setObjectName(QLatin1String("plcState"));
    m_stick->setObjectName(QLatin1String("stickState"));
    m_storage->setObjectName(QLatin1String("storageState"));
    m_clock->setObjectName(QLatin1String("clock"));
    m_clock->setFont(lineFont(m_clock->font()));

    QHBoxLayout *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(itemGap);
    for (QWidget *item : {static_cast<QWidget *>(m_check), static_cast<QWidget *>(m_plc),
                          static_cast<QWidget *>(m_stick), static_cast<QWidget *>(m_storage),
                          static_cast<QWidget *>(m_clock)})
        row->addWidget(item);
    // What is kept for other words gives way before a word is cut.
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);

    connect(&m_clockTimer, &QTimer::timeout, this, &StatusStrip::tick);
    m_clockTimer.setSingleShot(true);
    tick();
    showAll();
}

void StatusStrip::follow(const PlcTransfer *transfer)
{
    connect(transfer, &PlcTransfer::progress, this, &StatusStrip::noteProgress);
    connect(transfer, &PlcTransfer::finished, this, [this] { noteEnd(false); });
    connect(transfer, &PlcTransfer::failed, this,
            [this, transfer] { noteFailure(transfer->isPlcAtFault()); });
    connect(transfer, &PlcTransfer::stopped, this, &StatusStrip::noteStop);
}

StatusStrip::Plc StatusStrip::plc() const
{
    if (m_percent >= 0)
        return PlcSending;
    if (!m_isKnown)
        return PlcUnknown;
    if (!m_devices.plcReachable)
        return PlcAway;
    return m_hasFailed ? PlcFailed : PlcReady;
}

StatusStrip::Storage StatusStrip::storageOf(qint64 freeBytes)
{
    if (freeBytes < 0)
        return StorageUnknown;
    if (freeBytes < fullBytes)
        return StorageFull;
    return freeBytes < lowBytes ? StorageLow : StorageAmple;
}

void StatusStrip::showDevices(const DeviceState &state)
{
    const bool wasThere = m_isKnown && m_devices.plcReachable;
    // A PLC that comes back is as good as new.
    if (state.isKnown && state.plcReachable && !wasThere)
        m_hasFailed = false;
    m_devices = state;
    m_isKnown = state.isKnown;
    showAll();
}

void StatusStrip::showCheck(Check check, int errors, int warnings)
{
    m_checkState = check;
    m_errors = errors;
    m_warnings = warnings;
    m_isCheckTold = true;
    showCheck();
}

void StatusStrip::setBrief(bool isBrief)
{
    if (isBrief == m_isBrief)
        return;
    m_isBrief = isBrief;
    m_stick->setHidden(isBrief);
    m_storage->setHidden(isBrief);
    showCheck();
}

void StatusStrip::setNamed(bool isNamed)
{
    if (isNamed == m_isNamed)
        return;
    m_isNamed = isNamed;
    showAll();
}

void StatusStrip::mousePressEvent(QMouseEvent *event)
{
    event->setAccepted(isOnCheck(event->pos()));
}

void StatusStrip::mouseReleaseEvent(QMouseEvent *event)
{
    event->setAccepted(isOnCheck(event->pos()));
    if (event->isAccepted())
        Q_EMIT checkTouched();
}

void StatusStrip::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space)
        return QWidget::keyPressEvent(event);
    if (!event->isAutoRepeat() && !m_check->isHidden())
        Q_EMIT checkTouched();
}

// A thumb is wider than a number.
bool StatusStrip::isOnCheck(const QPoint &point) const
{
    if (m_check->isHidden())
        return false;
    const int margin = qMax(0, (Measures::touch() - m_check->width()) / 2);
    const QRect area = m_check->geometry().adjusted(-margin, 0, margin, 0);
    return point.x() >= area.left() && point.x() <= area.right() && rect().contains(point);
}

void StatusStrip::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        showAll();
    QWidget::changeEvent(event);
}

void StatusStrip::noteProgress(int percent)
{
    m_percent = percent;
    showPlc();
}

void StatusStrip::noteEnd(bool failed)
{
    m_hasFailed = failed;
    m_percent = -1;
    showPlc();
}

/// A fault of a program says nothing of the PLC.
void StatusStrip::noteFailure(bool isPlcAtFault)
{
    if (isPlcAtFault)
        noteEnd(true);
    else
        noteStop();
}

/// A download that the operator stopped says nothing of the PLC.
void StatusStrip::noteStop()
{
    m_percent = -1;
    showPlc();
}

void StatusStrip::showAll()
{
    keepRoom();
    showCheck();
    showPlc();
    showStick();
    showStorage();
}

QString StatusStrip::named(const QString &name, const QString &word) const
{
    return m_roomy && m_isNamed ? name + QLatin1Char(' ') + word : word;
}

/// The words change by themselves, and while the operator types: nothing beside them may move.
void StatusStrip::keepRoom()
{
    const auto keep = [this](StatusItem *item, const QString &name, QStringList usual,
                             QStringList rare) {
        for (QStringList *words : {&usual, &rare}) {
            for (QString &word : *words)
                word = named(name, word);
        }
        item->keepRoomFor(usual, rare);
    };
    if (m_roomy)
        keep(m_check, tr("Check"), {dash(), tr("ok"), QLatin1String("999")}, {});
    keep(m_plc, tr("PLC"), {dash(), tr("ready"), tr("away")}, {tr("failed"), tr("%1 %").arg(100)});
    keep(m_stick, tr("Stick"), {dash(), tr("in"), tr("out")}, {});
    keep(m_storage, tr("Storage"), {dash(), tr("%1 GB").arg(99)},
         {tr("%1 MB").arg(999), tr("full"), QLatin1String("! ") + tr("%1 MB").arg(99)});
}

void StatusStrip::showCheck()
{
    const QString name = tr("Check");
    const bool isFaulty = m_errors > 0 || m_warnings > 0;
    // On a small panel faults take the place of the clock, and there is no room for good news.
    m_check->setVisible(m_isCheckTold && (m_roomy || isFaulty));
    setFocusPolicy(m_check->isHidden() ? Qt::NoFocus : Qt::TabFocus);
    m_clock->setVisible((m_roomy || !isFaulty) && !m_isBrief);
    m_check->setGlyph(m_errors > 0 ? Glyphs::Alarm : m_warnings > 0 ? Glyphs::Warn : Glyphs::Check);
    if (m_checkState == CheckUnknown)
        return m_check->setToneless(named(name, dash()), tr("Check: not known"));
    const QString meaning = tr("Check: errors %1, warnings %2").arg(m_errors).arg(m_warnings);
    if (m_errors > 0)
        return m_check->set(named(name, QString::number(m_errors)), Message::Alarm, meaning);
    if (m_warnings > 0)
        return m_check->set(named(name, QString::number(m_warnings)), Message::Warning, meaning);
    m_check->set(named(name, tr("ok")), Message::Information, tr("Check: nothing found"));
}

void StatusStrip::showPlc()
{
    const QString name = tr("PLC");
    switch (plc()) {
    case PlcUnknown:
        return m_plc->setToneless(named(name, dash()), tr("PLC: not known"));
    case PlcReady:
        return m_plc->set(named(name, tr("ready")), Message::Information, tr("PLC: ready"));
    case PlcAway:
        return m_plc->set(named(name, tr("away")), Message::Alarm, tr("PLC: does not answer"));
    case PlcSending:
        return m_plc->set(named(name, tr("%1 %").arg(m_percent)), Message::Information,
                          tr("PLC: receives a program"));
    case PlcFailed:
        return m_plc->set(named(name, tr("failed")), Message::Alarm,
                          tr("PLC: the last download failed"));
    }
}

void StatusStrip::showStick()
{
    const QString name = tr("Stick");
    if (!m_isKnown)
        return m_stick->setToneless(named(name, dash()), tr("Stick: not known"));
    if (m_devices.stickIn)
        return m_stick->set(named(name, tr("in")), Message::Information, tr("Stick: in"));
    m_stick->setToneless(named(name, tr("out")), tr("Stick: out"));
}

QString StatusStrip::roomText(qint64 bytes)
{
    const qint64 megabytes = bytes / megabyte;
    if (megabytes < 1000)
        return tr("%1 MB").arg(megabytes);
    const int decimals = megabytes < qint64(10) * 1024 ? 1 : 0;
    return tr("%1 GB").arg(double(megabytes) / 1024, 0, 'f', decimals);
}

void StatusStrip::showStorage()
{
    const QString room = roomText(m_devices.freeBytes);
    const QString name = tr("Storage");
    switch (storage()) {
    case StorageUnknown:
        return m_storage->setToneless(named(name, dash()), tr("Storage: not known"));
    case StorageAmple:
        return m_storage->set(named(name, room), Message::Information,
                              tr("Storage: %1 free").arg(room));
    case StorageLow:
        return m_storage->set(named(name, QLatin1String("! ") + room), Message::Warning,
                              tr("Storage: only %1 free").arg(room));
    case StorageFull:
        return m_storage->set(named(name, tr("full")), Message::Alarm, tr("Storage: full"));
    }
}

/// The clock of a panel may be set at any moment: each second is looked up, none is counted.
void StatusStrip::tick()
{
    const QTime now = QTime::currentTime();
    m_clock->setText(now.toString(QLatin1String(m_roomy ? "HH:mm:ss" : "HH:mm")));
    m_clockTimer.start(secondMs - now.msec() % secondMs);
}

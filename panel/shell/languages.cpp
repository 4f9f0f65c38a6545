// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/languages.h"

#include "shell/settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>

namespace {

const char english[] = "en";
const char key[] = "language";

} // namespace

Languages::Languages(const QStringList &folders, Settings *settings, QObject *parent)
    : QObject(parent), m_folders(folders), m_settings(settings), m_current(QLatin1String(english))
{}

Languages::~Languages()
{
    qDeleteAll(m_installed);
}

QList<Languages::Language> Languages::all()
{
    return {{QLatin1String(english), QLatin1String("English")},
            {QLatin1String("de"), QLatin1String("Deutsch")},
            {QLatin1String("it"), QLatin1String("Italiano")},
            {QLatin1String("tr"), QString::fromUtf8("T\u00fcrk\u00e7e")},
            {QLatin1String("zh_CN"), QString::fromUtf8("\u7b80\u4f53\u4e2d\u6587")}};
}

QStringList Languages::codes()
{
    QStringList codes;
    const QList<Language> languages = all();
    for (const Language &language : languages)
        codes.append(language.code);
    return codes;
}

QString Languages::preferred() const
{
    const QStringList known = codes();
    QString chosen = m_settings->choice(QLatin1String(key), known);
    if (!chosen.isEmpty())
        return chosen;
    const QString system = QLocale().name();
    for (const QString &code : {system, system.section(QLatin1Char('_'), 0, 0)}) {
        if (known.contains(code))
            return code;
    }
    return QLatin1String(english);
}

bool Languages::use(const QString &code)
{
    if (!codes().contains(code))
        return false;

    QList<QTranslator *> loaded;
    bool isComplete = true;
    if (code != QLatin1String(english)) {
        // A panel's own keypads, and a toolkit without its translations, speak as they can.
        const QPair<const char *, bool> files[] = {{"qtbase", false},
                                                   {"hmidevice-sim", false},
                                                   {"filarix", true},
                                                   {"filarixhost", true},
                                                   {"filarix-panel", true}};
        for (const QPair<const char *, bool> &file : files) {
            QTranslator *translator = new QTranslator;
            loaded.append(translator);
            if (!load(translator, QLatin1String(file.first), code) && file.second)
                isComplete = false;
        }
    }
    if (!isComplete) {
        qDeleteAll(loaded);
        return false;
    }
    m_current = code;
    // Each tells the widgets by a posted event, and these are made one: they see the last state.
    qDeleteAll(m_installed);
    m_installed = loaded;
    for (QTranslator *translator : qAsConst(m_installed))
        QCoreApplication::installTranslator(translator);
    return true;
}

bool Languages::choose(const QString &code)
{
    if (!use(code))
        return false;
    m_settings->setChoice(QLatin1String(key), code);
    return true;
}

bool Languages::load(QTranslator *translator, const QString &name, const QString &code) const
{
    const QStringList folders =
        m_folders + QStringList(QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    for (const QString &folder : folders) {
        // By the full name: load() would fall back to a file of another language.
        const QString path =
            QDir(folder).filePath(name + QLatin1Char('_') + code + QLatin1String(".qm"));
        if (QFileInfo::exists(path) && translator->load(path))
            return true;
    }
    return false;
}

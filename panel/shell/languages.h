// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LANGUAGES_H
#define LANGUAGES_H

#include <QList>
#include <QObject>
#include <QStringList>
#include <QTranslator>

class Settings;

/// The languages that the panel speaks, and the one in which it does now.
///
/// A language has a translation each of the library, its companion, the panel program and the
/// toolkit. The keypads of the stand-in device library have one, too. The widgets learn of a change
/// by QEvent::LanguageChange.
///
///     Languages languages(folders, &settings);
///     languages.use(languages.preferred());
class Languages : public QObject
{
    Q_OBJECT

public:
    struct Language
    {
        QString code; ///< As in the names of the files: "en", "de", "zh_CN".
        QString name; ///< In the language itself.
    };

    /// Looks for translations in \a folders, first come first served, and keeps the operator's
    /// choice in \a settings, which must live as long. Speaks English until use() is called.
    Languages(const QStringList &folders, Settings *settings, QObject *parent = nullptr);
    ~Languages() override;

    /// English first, which needs no translation.
    static QList<Language> all();
    static QStringList codes();

    /// The code of the language now spoken.
    QString current() const { return m_current; }
    /// The same for a key: "EN".
    QString shortName() const { return m_current.left(2).toUpper(); }
    /// The operator's choice; without one the system's language, English where that is none of
    /// ours.
    QString preferred() const;

    /// Speaks the language from now on. False, and nothing changed, for an unknown code or where
    /// the library's or the program's translation cannot be loaded.
    bool use(const QString &code);
    /// The same for the operator's choice, which is kept.
    bool choose(const QString &code);

private:
    bool load(QTranslator *translator, const QString &name, const QString &code) const;

    const QStringList m_folders;
    Settings *m_settings;
    QString m_current;
    QList<QTranslator *> m_installed;
};

#endif // LANGUAGES_H

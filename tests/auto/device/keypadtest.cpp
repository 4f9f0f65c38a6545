// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "keypadtest.h"

#include <QApplication>

void KeypadTest::init()
{
    FilarixTest::init();
    setScreen(QRect(0, 0, 800, 480));
}

void KeypadTest::setScreen(const QRect &screen, double dotsPerInch)
{
    qApp->setProperty("hmiScreen", screen);
    qApp->setProperty("hmiDotsPerInch", dotsPerInch > 0 ? QVariant(dotsPerInch) : QVariant());
}

int KeypadTest::run(QDialog *keypad, const std::function<void()> &step)
{
    ModalDriver driver;
    driver.then([&](QWidget *) {
        step();
        // Not by isVisible(): see FilarixTest::cleanup().
        if (!keypad->isHidden())
            keypad->reject();
    });
    return keypad->exec();
}

QAbstractButton *KeypadTest::key(QDialog *keypad, const char *token)
{
    const QString name = QLatin1String("key_") + QLatin1String(token);
    QAbstractButton *button = keypad->findChild<QAbstractButton *>(name);
    if (!button)
        QTest::qFail(qPrintable(QLatin1String("no ") + name), __FILE__, __LINE__);
    return button;
}

void KeypadTest::click(QDialog *keypad, const char *tokens)
{
    Q_FOREACH (const QString &token, QString::fromLatin1(tokens).split(QLatin1Char(' '))) {
        QAbstractButton *button = key(keypad, token.toLatin1());
        if (!button)
            continue;
        if (!button->isVisible())
            QTest::qFail(qPrintable(token + QLatin1String(" is on another page")), __FILE__,
                         __LINE__);
        QTest::mouseClick(button, Qt::LeftButton);
    }
}

void KeypadTest::clickOnAnyPage(QDialog *keypad, const char *tokens)
{
    Q_FOREACH (const QString &token, QString::fromLatin1(tokens).split(QLatin1Char(' '))) {
        const QAbstractButton *button =
            keypad->findChild<QAbstractButton *>(QLatin1String("key_") + token);
        if ((!button || !button->isVisible()) && pageKey(keypad))
            QTest::mouseClick(pageKey(keypad), Qt::LeftButton);
        click(keypad, token.toLatin1());
    }
}

QAbstractButton *KeypadTest::pageKey(QDialog *keypad)
{
    Q_FOREACH (const char *token, QList<const char *>() << "page"
                                                        << "digits") {
        QAbstractButton *button =
            keypad->findChild<QAbstractButton *>(QLatin1String("key_") + QLatin1String(token));
        if (button && button->isVisible())
            return button;
    }
    return nullptr;
}

QLineEdit *KeypadTest::value(QDialog *keypad)
{
    return keypad->findChild<QLineEdit *>(QLatin1String("value"));
}

QString KeypadTest::line(QDialog *keypad, const char *name)
{
    const QWidget *label = keypad->findChild<QWidget *>(QLatin1String(name));
    return label && label->isVisible() ? label->property("text").toString() : QString();
}

QString KeypadTest::layoutFault(QDialog *keypad, const QRect &screen, int keySide)
{
    if (!screen.contains(keypad->geometry()))
        return QLatin1String("the keypad leaves the screen");

    QList<QWidget *> parts;
    Q_FOREACH (QAbstractButton *button, keypad->findChildren<QAbstractButton *>()) {
        if (!button->isVisible())
            continue;
        if (button->width() < keySide || button->height() < keySide)
            return button->objectName()
                   + QString::fromLatin1(" is %1x%2").arg(button->width()).arg(button->height());
        parts.append(button);
    }
    Q_FOREACH (const char *name, QList<const char *>() << "value"
                                                       << "title"
                                                       << "hint"
                                                       << "oldValue"
                                                       << "limit"
                                                       << "reason")
        parts.append(keypad->findChild<QWidget *>(QLatin1String(name)));

    for (int i = 0; i < parts.count(); ++i) {
        QWidget *part = parts.at(i);
        if (!part->isVisible())
            continue;
        const QRect place(part->mapTo(keypad, QPoint(0, 0)), part->size());
        if (place.isEmpty() || !keypad->rect().contains(place))
            return part->objectName() + QLatin1String(" leaves the keypad");
        for (int j = 0; j < i; ++j) {
            const QRect other(parts.at(j)->mapTo(keypad, QPoint(0, 0)), parts.at(j)->size());
            if (parts.at(j)->isVisible() && place.intersects(other))
                return part->objectName() + QLatin1String(" covers ") + parts.at(j)->objectName();
        }
    }
    return QString();
}

void KeypadTest::addScreens()
{
    QTest::addColumn<QRect>("screen");
    QTest::newRow("480x272") << QRect(0, 0, 480, 272);
    QTest::newRow("480x272 upright") << QRect(0, 0, 272, 480);
    QTest::newRow("800x480") << QRect(0, 0, 800, 480);
    QTest::newRow("800x480 upright") << QRect(0, 0, 480, 800);
    QTest::newRow("1024x600") << QRect(0, 0, 1024, 600);
    QTest::newRow("1280x800") << QRect(0, 0, 1280, 800);
    QTest::newRow("a panel's window on a desktop") << QRect(300, 120, 480, 272);
    QTest::newRow("left of the main screen") << QRect(-1024, -40, 1024, 600);
}

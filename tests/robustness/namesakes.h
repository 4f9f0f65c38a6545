// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef NAMESAKES_H
#define NAMESAKES_H

#include <QDir>
#include <QStringList>
#include <QWidget>

class QTextDocument;

/// What a namesake holds. One that is made or destroyed in the place of a class of the library
/// writes over what lies behind that.
class Own
{
public:
    Own();
    ~Own();
    void use();

    /// How often one was made, used or destroyed.
    static int uses();

private:
    char m_bytes[4096];
};

// A host's own classes, by the names and with the constructors of those that the library exports.

class Q_DECL_EXPORT CheckBox : public QWidget
{
    Q_OBJECT

public:
    explicit CheckBox(QWidget *parent);
    CheckBox(const QString &text, QWidget *parent);
    ~CheckBox() override;

private:
    Own m_own;
};

class Q_DECL_EXPORT ComboBox : public QWidget
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget *parent, bool editable);
    ~ComboBox() override;

private:
    Own m_own;
};

class Q_DECL_EXPORT ConnEditor : public QWidget
{
    Q_OBJECT

public:
    ConnEditor(QString fileName, QWidget *parent);
    ~ConnEditor() override;

private:
    Own m_own;
};

class Q_DECL_EXPORT DataEditor : public QWidget
{
    Q_OBJECT

public:
    DataEditor(bool isTitle, QStringList &list, QSize size, QWidget *parent, bool connectionRow);
    ~DataEditor() override;

    QStringList getData();
    void setData(QStringList &list);

private:
    Own m_own;
};

class Q_DECL_EXPORT Dialog : public QWidget
{
    Q_OBJECT

public:
    explicit Dialog(QWidget *parent);
    ~Dialog() override;

    void setTitle(const QString &title);

protected:
    void showEvent(QShowEvent *event) override;

private:
    Own m_own;
};

class Q_DECL_EXPORT DoubleSpinBox : public QWidget
{
    Q_OBJECT

public:
    explicit DoubleSpinBox(QWidget *parent);
    ~DoubleSpinBox() override;

private:
    Own m_own;
};

class Q_DECL_EXPORT FileDialog : public QWidget
{
    Q_OBJECT

public:
    FileDialog(QDir::Filters filter, QString title, QString path, QWidget *parent,
               Qt::WindowFlags flags);
    ~FileDialog() override;

    static QString m_returnStr;

private:
    Own m_own;
};

class Q_DECL_EXPORT GroupBox : public QWidget
{
    Q_OBJECT

public:
    explicit GroupBox(QWidget *parent);
    GroupBox(const QString &title, QWidget *parent);
    ~GroupBox() override;

private:
    Own m_own;
};

class Q_DECL_EXPORT ImportManage : public QWidget
{
    Q_OBJECT

public:
    explicit ImportManage(QWidget *parent);
    ~ImportManage() override;

private:
    Own m_own;
};

class Q_DECL_EXPORT LineEdit : public QWidget
{
    Q_OBJECT

public:
    explicit LineEdit(QWidget *parent);
    ~LineEdit() override;

private:
    Own m_own;
};

class Q_DECL_EXPORT ListWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ListWidget(QWidget *parent);
    ~ListWidget() override;

    int count() const;

private:
    Own m_own;
};

class Q_DECL_EXPORT MessageBox : public QWidget
{
    Q_OBJECT

public:
    explicit MessageBox(QWidget *parent);
    ~MessageBox() override;

private:
    Own m_own;
};

class Q_DECL_EXPORT MJLine : public QWidget
{
    Q_OBJECT

public:
    MJLine(QStringList &list, QSize size, QWidget *parent);
    ~MJLine() override;

private:
    Own m_own;
};

class Q_DECL_EXPORT PushButton : public QWidget
{
    Q_OBJECT

public:
    explicit PushButton(QWidget *parent);
    PushButton(const QString &text, QWidget *parent);
    ~PushButton() override;

private:
    Own m_own;
};

class Q_DECL_EXPORT ScrollBar : public QWidget
{
    Q_OBJECT

public:
    ScrollBar(Qt::Orientation orientation, QWidget *parent);
    ~ScrollBar() override;

private:
    Own m_own;
};

class Q_DECL_EXPORT SpinBox : public QWidget
{
    Q_OBJECT

public:
    explicit SpinBox(QWidget *parent);
    ~SpinBox() override;

private:
    Own m_own;
};

class Q_DECL_EXPORT TListWidget : public QWidget
{
    Q_OBJECT

public:
    TListWidget(QStringList &list, QWidget *parent);
    ~TListWidget() override;

    void reshow();

private:
    Own m_own;
};

class Q_DECL_EXPORT WGCodeEditer : public QWidget
{
    Q_OBJECT

public:
    explicit WGCodeEditer(QWidget *parent);
    ~WGCodeEditer() override;

private:
    Own m_own;
};

class Q_DECL_EXPORT WHighlighter : public QObject
{
    Q_OBJECT

public:
    explicit WHighlighter(QTextDocument *parent);
    ~WHighlighter() override;

private:
    Own m_own;
};

class Q_DECL_EXPORT WMMainWindow : public QWidget
{
    Q_OBJECT

public:
    WMMainWindow(QWidget *parent, int rotation);
    ~WMMainWindow() override;

private:
    Own m_own;
};

#endif // NAMESAKES_H

// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WIDGETPLUGIN_H
#define WIDGETPLUGIN_H

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/// What Qt Designer is told of one class, and what makes its widgets.
struct WidgetInfo
{
    /// On a form that is loaded at run time, and on one that is being designed, where a widget that
    /// shows nothing by itself shows an example of what the host will put in.
    enum Purpose { ForUse, ForDesign };

    const char *className;
    const char *header;
    const char *toolTip;
    const char *whatsThis;
    bool isContainer;
    /// In pixels, as dropped on a form.
    int width;
    int height;
    /// What a dropped widget has set, in the words of a .ui file.
    const char *properties;
    QWidget *(*create)(QWidget *parent, Purpose purpose);
};

/// One class of the library for Qt Designer. \a info has to outlive it.
class WidgetPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    WidgetPlugin(const WidgetInfo *info, QObject *parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QString domXml() const override;
    /// The caller owns the widget, or \a parent does.
    QWidget *createWidget(QWidget *parent) override;

    bool isInitialized() const override;
    /// Called by Qt Designer, and by nobody who loads a form at run time.
    void initialize(QDesignerFormEditorInterface *core) override;

private:
    const WidgetInfo *m_info;
    WidgetInfo::Purpose m_purpose = WidgetInfo::ForUse;
};

#endif // WIDGETPLUGIN_H

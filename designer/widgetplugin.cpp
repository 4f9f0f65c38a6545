// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "widgetplugin.h"

#include <QIcon>

WidgetPlugin::WidgetPlugin(const WidgetInfo *info, QObject *parent) : QObject(parent), m_info(info)
{}

QString WidgetPlugin::name() const
{
    return QLatin1String(m_info->className);
}

QString WidgetPlugin::group() const
{
    return QLatin1String("Filarix Module");
}

QString WidgetPlugin::toolTip() const
{
    return QLatin1String(m_info->toolTip);
}

QString WidgetPlugin::whatsThis() const
{
    return QLatin1String(m_info->whatsThis);
}

QString WidgetPlugin::includeFile() const
{
    return QLatin1String(m_info->header);
}

QIcon WidgetPlugin::icon() const
{
    return QIcon(QLatin1String(":/filarixmodule/designer/") + name() + QLatin1String(".png"));
}

bool WidgetPlugin::isContainer() const
{
    return m_info->isContainer;
}

QString WidgetPlugin::domXml() const
{
    QString objectName = name();
    // As Designer names the toolkit's own: pushButton, but tListWidget and wgCodeEditer.
    int capitals = 0;
    while (capitals < objectName.size() && objectName.at(capitals).isUpper())
        ++capitals;
    const int lowered = capitals > 2 ? capitals - 1 : 1;
    objectName = objectName.left(lowered).toLower() + objectName.mid(lowered);
    return QString::fromLatin1("<ui language=\"c++\">"
                               "<widget class=\"%1\" name=\"%2\">"
                               "<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                               "<width>%3</width><height>%4</height></rect></property>"
                               "%5</widget></ui>")
        .arg(name(), objectName)
        .arg(m_info->width)
        .arg(m_info->height)
        .arg(QLatin1String(m_info->properties));
}

QWidget *WidgetPlugin::createWidget(QWidget *parent)
{
    return m_info->create(parent, m_purpose);
}

bool WidgetPlugin::isInitialized() const
{
    return m_purpose == WidgetInfo::ForDesign;
}

void WidgetPlugin::initialize(QDesignerFormEditorInterface *core)
{
    if (core)
        m_purpose = WidgetInfo::ForDesign;
}

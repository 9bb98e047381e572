// What a list widget shows, row by row, for comparing in one line.
#pragma once

#include <QListWidget>
#include <QStringList>

inline QStringList texts(const QListWidget *list)
{
    QStringList t;
    for (int i = 0; i < list->count(); ++i)
        t << list->item(i)->text();
    return t;
}

// Where the home screen's controls go, as pure geometry.
#pragma once

#include <QRectF>
#include <QSizeF>

struct SelectLayout {
    QRectF band;            // the picture band across the top
    QRectF list;            // lstQuestions
    QRectF importExport;    // vseImportExport, beside the list
    QRectF scoreLabel;      // lblScore, under the list
    QRectF scoreCombo;      // cmbScore, right of the label
    QRectF buttons;         // vseButtons, along the bottom
};

// client: the window's inside; P: the band's height (the picture's);
// C: the team-count list's height; labelWidth: the label's caption width;
// combo: the team-count list's size.
SelectLayout LayOutSelectScreen(QSizeF client, qreal P, qreal C, qreal labelWidth, QSizeF combo);

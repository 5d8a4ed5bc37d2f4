#pragma once

#include "ColorTable.h"

#include <QColor>
#include <QObject>
#include <QPalette>
#include <QString>
#include <QTextCharFormat>

/// The colours of the present scheme. Who paints asks for the colour when it paints; who keeps one listens to
/// changed().
class Colors : public QObject, public ColorTable
{
    Q_OBJECT

public:
    enum eScheme_t { eLight, eDark };

    /// The one object, for its signal. Lives until the process ends.
    static Colors* instance();

    static eScheme_t scheme() { return instance()->m_scheme; }
    /// Does not touch palette or style sheet: ColorScheme does. Emits changed() if it is another one.
    static void setScheme(eScheme_t scheme);

    static QColor of(eRole_t role) { return of(role, scheme()); }
    static QColor of(eRole_t role, eScheme_t scheme);

    /// A colour of the settings as it is shown. The settings hold light defaults: one that the user has not changed is
    /// shown in the colour of the scheme, any other one as it is.
    static QColor shown(eRole_t role, const QColor& stored);
    static QTextCharFormat shown(eRole_t role, const QTextCharFormat& stored);
    /// The reverse of shown(): what the settings hold for a colour that the user has left or chosen, in whichever
    /// scheme.
    static QColor stored(eRole_t role, const QColor& shown);
    static QTextCharFormat stored(eRole_t role, const QTextCharFormat& shown);

    /// The colour for paper, which is white, of a text of a program as it is shown now.
    static QColor onPaper(const QColor& shown);

    /// A text with "@name" for each role, such as a style sheet, with the colours and pictures of the present scheme. A
    /// name that is no role stays.
    static QString filled(QString text);
    /// The style sheet of the window; null where it is missing.
    static QString styleSheet();
    /// The path in the resources of a picture of the present scheme. @param path ":/..." of the light one
    static QString picture(const QString& path);

    /// The palette for all that has no style sheet.
    static QPalette palette();
    /// Ratio of luminances, 1 to 21.
    static double contrast(const QColor& one, const QColor& other);

signals:
    /// The scheme is another one; palette and style sheet follow before or after.
    void changed();

private:
    Colors() = default;

    eScheme_t m_scheme = eLight;
};

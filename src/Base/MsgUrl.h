#pragma once

#include <QString>
#include <QUrl>

namespace nsModMsg {

/// A source link: a URL of scheme "file" whose path is the file and whose fragment is the line number, counted from 0.
class MsgUrl : public QUrl
{
public:
    MsgUrl() = default;

    /// What the message view shows for the link; an empty text lets the view form one from the URL.
    void setDisplayName(QString name) { m_displayName = name; }
    QString displayName() const { return m_displayName; }

    using QUrl::setFragment;
    /// Sets the fragment to the decimal text of the number.
    void setFragment(int number) { QUrl::setFragment(QString::number(number)); }

private:
    QString m_displayName;
};

} // namespace nsModMsg

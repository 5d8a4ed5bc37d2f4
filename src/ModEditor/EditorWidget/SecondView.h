#pragma once

#include "LineHighlights.h"
#include "SourceEdit.h"

#include <QTextCursor>

namespace nsModEditor {

class EditorWidget;
class EditorWidgetLeftMargin;
struct sViewPlace;

/// The other half of a page that is split: the text of the page, seen at another place.
///
/// The user works in the page alone. Whoever goes to the second view, by the mouse or by a key, lets both change places
/// on the screen and in the text (DocumentViews::exchange()). So all others know the page only; the second view
/// never has the focus.
class SecondView : public SourceEdit
{
    Q_OBJECT

public:
    /// Shows the place of the page. @param page shares its document and must live longer
    explicit SecondView(EditorWidget* page);
    ~SecondView() override;

    // EditorDocument: those of the page
    QString filePath() const override;
    QString text() const override;
    void setMessageMarks(const QVector<sMessageMark>& marks) override;
    QStringList messagesAt(int line) const override;
    QTextCursor messagePlace(int index) const override;
    void reportActions() override {}

    void showPlace(const sViewPlace& place);
    /// Takes over font, wrapping and the like of the page.
    void takeLook();
    LineHighlights* lineHighlights() { return &m_lineHighlights; }
    EditorWidgetLeftMargin* leftMargin() const { return m_leftMargin; }
    void updateLeftMarginWidth();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool mouseEvent(QEvent* event);
    void enterPage();
    void noteTop();
    void keepTop();

    EditorWidget* m_page;
    EditorWidgetLeftMargin* m_leftMargin = nullptr;
    LineHighlights m_lineHighlights;
    QTextCursor m_top;        ///< the first line on the screen
    int m_topRow = 0;         ///< rows of this line above the screen
    bool m_isPressed = false; ///< a button of the mouse that went down here
};

} // namespace nsModEditor

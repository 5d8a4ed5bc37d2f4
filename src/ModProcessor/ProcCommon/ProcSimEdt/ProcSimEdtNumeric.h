#pragma once

#include <QLineEdit>

namespace nsProc {

/// A field for a number with a range and a base. The value is the text: each key press counts at once, limited to the
/// range.
///
/// Text that is no number in the base counts as 0 until the edit has ended; then the text shows the value that counts.
class ProcSimEdtNumeric : public QLineEdit
{
    Q_OBJECT

public:
    explicit ProcSimEdtNumeric(QWidget* parent = nullptr);

    /// Leaves less space beside the digits, for a field of a table.
    void setCompact();
    /// @param max at least min; it decides how many digits are shown. Negative limits are not supported.
    void setRange(int min, int max);
    /// An empty field shows its value again, also with the base that it has.
    /// @param base 8, 10 or 16
    void setBase(int base);
    int base() const { return m_base; }
    /// Shows a value that does not come from the user. Fast if the value has not changed.
    /// @return false, with nothing changed, outside of the range
    bool setValue(int value);
    int value() const { return m_value; }
    /// Ends an edit as a change of the focus does, but reports nothing.
    /// @return there was one: value() is what the user has typed
    bool takeEdit();
    /// Red text: the program has changed the value.
    void setHighlightEn(bool enabled);
    bool isHighlighted() const { return m_highlighted; }

signals:
    /// The user has typed: the value that counts from now on.
    void edited(int value);
    /// The user has ended an edit.
    void valueChanged(int value);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void takeText(const QString& text);
    void finishEdit();

private:
    void showValue();
    void updateWidth();

    int m_min = 0;
    int m_max = 255;
    int m_base = 0;
    int m_value = 0;
    bool m_isCompact = false;
    bool m_highlighted = false;
    bool m_isEdited = false;
    bool m_isShowing = false;
};

} // namespace nsProc

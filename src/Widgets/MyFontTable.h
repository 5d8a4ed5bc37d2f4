#pragma once

#include <QTableView>
#include <QTextCharFormat>
#include <QVector>

class QStandardItem;
class QStandardItemModel;

/// A table of kinds of text with their formats: bold, italic and the colour, which the names of the kinds show.
///
/// A tick sets bold or italic; a click on a name, or Space or Return on it, selects its colour. The table is as high as
/// its rows: the page around it scrolls, not the table.
class MyFontTable : public QTableView
{
    Q_OBJECT

public:
    enum eColumn_t { columnContext = 0, columnBold = 1, columnItalic = 2, columnCount = 3 };

    explicit MyFontTable(QWidget* parent = nullptr);

    /// One row a name. The formats start empty.
    void setContexts(const QStringList& names);
    /// The format of a row; properties without a column in the table are kept unchanged.
    void setFormat(int row, const QTextCharFormat& format);
    QTextCharFormat format(int row) const { return m_formats.value(row); }
    /// The font family that the names are written in.
    void setSampleFamily(const QString& family);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void setFontParameter(QStandardItem* item);
    void getFontColor(const QModelIndex& index);

private:
    void showFormat(int row);
    void updateHeight();

    QStandardItemModel* m_model;
    QVector<QTextCharFormat> m_formats; ///< one a row
    QString m_sampleFamily;             ///< empty: the font of the page
};

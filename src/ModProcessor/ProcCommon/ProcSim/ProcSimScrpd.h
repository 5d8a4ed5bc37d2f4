#pragma once

#include <QScrollArea>
#include <QVector>

#include <memory>

class QLabel;

namespace nsProc {

class ProcSimCoreData;
class ProcSimEdtNumeric;

/// The cells of the scratchpad, each with its address.
///
/// A program reaches 256 cells. Of a scratchpad that is declared larger, the first 1024 are shown, with a note.
class ProcSimScrpd : public QScrollArea
{
    Q_OBJECT

public:
    explicit ProcSimScrpd(std::shared_ptr<ProcSimCoreData> data, QWidget* parent = nullptr);
    /// With a scratchpad of its own.
    explicit ProcSimScrpd(int size, QWidget* parent = nullptr);

    /// Sets a cell, which is the one highlighted from now on, and scrolls to it.
    /// @return false, with nothing changed, for an address outside
    bool setValue(int addr, int value);
    /// @return false, with nothing changed, for an address outside
    bool value(int addr, int* value) const;
    /// @return false, with nothing changed, with more values than cells
    bool initValues(unsigned int* values, int count);
    /// All cells to 0.
    void clear();
    /// @param base 8, 10 or 16
    void setBase(int base);
    /// Shows what has changed in the data.
    void refresh();

private:
    void setup();

    std::shared_ptr<ProcSimCoreData> m_data;
    QVector<ProcSimEdtNumeric*> m_cells;
    QVector<QLabel*> m_addresses; ///< of the first cell of each row
    int m_highlighted = -1;
};

} // namespace nsProc

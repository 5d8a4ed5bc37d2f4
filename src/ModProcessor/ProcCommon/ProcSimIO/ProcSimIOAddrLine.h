#pragma once

#include <QWidget>

class QLabel;

namespace nsProc {

class ProcSimEdtNumeric;

/// The address of a device, and the name that the program uses for it.
class ProcSimIOAddrLine : public QWidget
{
    Q_OBJECT

public:
    explicit ProcSimIOAddrLine(QWidget* parent = nullptr);

    void setBase(int base);
    /// @param addr 0 to ProcSimIODevice::maxAddr; an address beyond the range of the processors widens the field.
    /// ProcSimIODevice::noAddr empties it until the user types an address
    void setAddr(int addr);
    /// Reads the field. @return false if it is empty
    bool addr(int* addr) const;
    void setName(const QString& name);
    ProcSimEdtNumeric* addrEdit() const { return m_addr; }

signals:
    /// The user has typed.
    void addrEdited(int addr);

protected:
    void resizeEvent(QResizeEvent* event) override;

private slots:
    void takeEdit(int addr);
    void finishEdit();

private:
    void showNone();
    void showName();

    ProcSimEdtNumeric* m_addr;
    QLabel* m_nameLabel;
    QString m_name;
    bool m_isNone = false; ///< the field shows no address
};

} // namespace nsProc

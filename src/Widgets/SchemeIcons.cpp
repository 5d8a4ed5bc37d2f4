// Icons that follow the colour scheme: every QIcon that is made from a picture of the resources with a dark sister.

#include "Colors.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QIconEngine>
#include <QIconEnginePlugin>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QStyleOption>
#include <QVector>

namespace {

/// The pictures of an icon, read in the scheme in which they are shown.
class SchemeIconEngine : public QIconEngine
{
public:
    void addFile(const QString& fileName, const QSize&, QIcon::Mode mode, QIcon::State state) override
    {
        m_files.append({fileName, {}, mode, state});
        m_isLoaded = false;
    }

    /// A picture of the caller's, which is the same in both schemes.
    void addPixmap(const QPixmap& pixmap, QIcon::Mode mode, QIcon::State state) override
    {
        m_files.append({QString(), pixmap, mode, state});
        m_files.last().pixmap.setDevicePixelRatio(1.0); // sizes here are real pixels
        m_isLoaded = false;
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        const int best = nearest(size, mode, state);
        if (best < 0)
            return {};
        QPixmap result = m_pictures.at(best);
        if (result.width() > size.width() || result.height() > size.height())
            result = result.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        if (mode == QIcon::Normal || m_files.at(best).mode == mode || qApp == nullptr)
            return result;
        QStyleOption option;
        option.palette = QApplication::palette();
        return QApplication::style()->generatedIconPixmap(mode, result, &option);
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        const QPixmap picture = pixmap(rect.size() * ratio, mode, state);
        painter->drawPixmap(rect, picture);
    }

    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        const int best = nearest(size, mode, state);
        if (best < 0)
            return {};
        const QSize actual = m_pictures.at(best).size();
        return actual.width() > size.width() || actual.height() > size.height()
                   ? actual.scaled(size, Qt::KeepAspectRatio)
                   : actual;
    }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) const override
    {
        const_cast<SchemeIconEngine*>(this)->load();
        QList<QSize> sizes;
        for (const QPixmap& picture : m_pictures) {
            if (!sizes.contains(picture.size()))
                sizes.append(picture.size());
        }
        return sizes;
    }

    QString key() const override { return QStringLiteral("SchemeIconEngine"); }
    QIconEngine* clone() const override { return new SchemeIconEngine(*this); }

private:
    struct sFile_t
    {
        QString name;   ///< empty: the pixmap is the picture
        QPixmap pixmap; ///< null if there is a name
        QIcon::Mode mode;
        QIcon::State state;
    };

    void load()
    {
        if (m_isLoaded && m_scheme == Colors::scheme())
            return;
        m_isLoaded = true;
        m_scheme = Colors::scheme();
        m_pictures.clear();
        for (const sFile_t& file : qAsConst(m_files)) {
            if (file.name.isEmpty()) {
                m_pictures.append(file.pixmap);
                continue;
            }
            // An image, unlike a pixmap, is not replaced by a finer one on a fine screen: sizes here are real pixels.
            m_pictures.append(QPixmap::fromImage(QImage(Colors::picture(file.name))));
        }
    }

    /// The smallest picture that is large enough, or the largest one. A mode or state without a picture of its own has
    /// those of the others.
    /// @return its index; -1: there is none
    int nearest(const QSize& size, QIcon::Mode mode, QIcon::State state)
    {
        load();
        int best = -1;
        int bestRank = -1;
        for (int i = 0; i < m_pictures.size(); ++i) {
            const sFile_t& file = m_files.at(i);
            const int rank = (file.mode == mode ? 1 : 0) + (file.state == state ? 2 : 0);
            const QSize found = m_pictures.at(i).size();
            if (best < 0 || rank > bestRank ||
                (rank == bestRank && isBetter(found, m_pictures.at(best).size(), size))) {
                best = i;
                bestRank = rank;
            }
        }
        return best;
    }

    static bool isBetter(const QSize& found, const QSize& best, const QSize& wanted)
    {
        const bool isEnough = found.width() >= wanted.width() && found.height() >= wanted.height();
        const bool wasEnough = best.width() >= wanted.width() && best.height() >= wanted.height();
        if (isEnough != wasEnough)
            return isEnough;
        return isEnough ? found.width() < best.width() : found.width() > best.width();
    }

    QVector<sFile_t> m_files;
    QVector<QPixmap> m_pictures; ///< those of the files, in the scheme below
    bool m_isLoaded = false;
    Colors::eScheme_t m_scheme = Colors::eLight;
};

} // namespace

/// Asked by QIcon for each PNG file. Whoever uses Colors gets it, as it is imported there.
class SchemeIconPlugin : public QIconEnginePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QIconEngineFactoryInterface" FILE "SchemeIcons.json")

public:
    /// @return null for a picture without a dark sister, which is as QIcon makes it
    QIconEngine* create(const QString& fileName) override
    {
        const QString dark = QStringLiteral(":/dark") + fileName.mid(1);
        return fileName.startsWith(QLatin1String(":/")) && QFile::exists(dark) ? new SchemeIconEngine : nullptr;
    }
};

#include "SchemeIcons.moc"

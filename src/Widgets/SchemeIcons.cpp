#include "SchemeIcons.h"

#include "Colors.h"
#include "PixelPicture.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QStyleOption>
#include <QVector>

namespace {

QImage imageOf(const QString& path)
{
    QFile file(path);
    QImage image;
    if (file.open(QIODevice::ReadOnly) && PixelPicture::read(&file, &image))
        return image;
    return QImage(path);
}

/// The pictures of an icon, read when they are painted, in the scheme in which they are shown.
class SchemeIconEngine : public QIconEngine
{
public:
    /// @param follows shows the dark sister of the picture in the dark scheme
    static QIcon icon(const QString& path, bool follows)
    {
        if (!QFile::exists(path))
            return {};
        auto* engine = new SchemeIconEngine(follows);
        engine->addFile(path, QSize(), QIcon::Normal, QIcon::Off);
        // As QIcon does: the finer picture is for fine screens alone.
        QString fine = path;
        fine.insert(path.lastIndexOf('.'), QLatin1String("@2x"));
        if (qApp != nullptr && qApp->devicePixelRatio() > 1 && QFile::exists(fine))
            engine->addFile(fine, QSize(), QIcon::Normal, QIcon::Off);
        return QIcon(engine);
    }

    void addFile(const QString& fileName, const QSize&, QIcon::Mode mode, QIcon::State state) override
    {
        m_pictures.append({fileName, {}, {}, mode, state});
    }

    /// A picture of the caller's, which is the same in both schemes.
    void addPixmap(const QPixmap& pixmap, QIcon::Mode mode, QIcon::State state) override
    {
        m_pictures.append({QString(), pixmap, {}, mode, state});
        m_pictures.last().pixmap.setDevicePixelRatio(1.0); // sizes here are real pixels
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        const int best = nearest(size, mode, state);
        if (best < 0)
            return {};
        QPixmap result = read(best);
        if (result.width() > size.width() || result.height() > size.height())
            result = result.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        if (mode == QIcon::Normal || m_pictures.at(best).mode == mode || qApp == nullptr)
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
        const QSize actual = sizeOf(best);
        return actual.width() > size.width() || actual.height() > size.height()
                   ? actual.scaled(size, Qt::KeepAspectRatio)
                   : actual;
    }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) const override
    {
        auto* self = const_cast<SchemeIconEngine*>(this);
        self->followScheme();
        QList<QSize> sizes;
        for (int i = 0; i < m_pictures.size(); ++i) {
            const QSize size = self->sizeOf(i);
            if (!sizes.contains(size))
                sizes.append(size);
        }
        return sizes;
    }

    QString key() const override { return QStringLiteral("SchemeIconEngine"); }
    QIconEngine* clone() const override { return new SchemeIconEngine(*this); }

private:
    struct sPicture_t
    {
        QString name;   ///< of the light file; empty: the pixmap is the picture
        QPixmap pixmap; ///< null until it is painted
        QSize size;     ///< invalid until it is known
        QIcon::Mode mode;
        QIcon::State state;
    };

    explicit SchemeIconEngine(bool follows)
        : m_follows(follows)
    {
    }

    /// Drops what has been read in another scheme.
    void followScheme()
    {
        if (!m_follows || m_scheme == Colors::scheme())
            return;
        m_scheme = Colors::scheme();
        for (sPicture_t& picture : m_pictures) {
            if (picture.name.isEmpty())
                continue;
            picture.pixmap = QPixmap();
            picture.size = QSize();
        }
    }

    QString fileOf(const sPicture_t& picture) const { return m_follows ? Colors::picture(picture.name) : picture.name; }

    QPixmap read(int index)
    {
        sPicture_t& picture = m_pictures[index];
        // An image, unlike a pixmap, is not replaced by a finer one on a fine screen: sizes here are real pixels.
        if (picture.pixmap.isNull() && !picture.name.isEmpty())
            picture.pixmap = QPixmap::fromImage(imageOf(fileOf(picture)));
        return picture.pixmap;
    }

    QSize sizeOf(int index)
    {
        sPicture_t& picture = m_pictures[index];
        // The only picture will be painted, so it is read at once.
        if (!picture.size.isValid() && (m_pictures.size() == 1 || picture.name.isEmpty()))
            picture.size = read(index).size();
        else if (!picture.size.isValid())
            picture.size = QImageReader(fileOf(picture)).size();
        return picture.size;
    }

    /// The smallest picture that is large enough, or the largest one. A mode or state without a picture of its own has
    /// those of the others.
    /// @return its index; -1: there is none
    int nearest(const QSize& size, QIcon::Mode mode, QIcon::State state)
    {
        followScheme();
        int best = -1;
        int bestRank = -1;
        for (int i = 0; i < m_pictures.size(); ++i) {
            const sPicture_t& picture = m_pictures.at(i);
            const int rank = (picture.mode == mode ? 1 : 0) + (picture.state == state ? 2 : 0);
            if (best < 0 || rank > bestRank || (rank == bestRank && isBetter(sizeOf(i), sizeOf(best), size))) {
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

    QVector<sPicture_t> m_pictures;
    bool m_follows;
    Colors::eScheme_t m_scheme = Colors::eLight; ///< in which they were read
};

} // namespace

QIcon SchemeIcons::of(const QString& path)
{
    return SchemeIconEngine::icon(path, true);
}

QIcon SchemeIcons::always(const QString& path)
{
    return SchemeIconEngine::icon(path, false);
}

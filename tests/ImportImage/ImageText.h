#pragma once

#include "ImageReader.h"

#include <QString>
#include <QVector>

#include <ostream>

/// An image as text: blocks of words, each with its address in front, such as "000: 00001 34001 | 3FF: 38001".
inline QString imageText(const nsImport::ProgramImage& image)
{
    QString text;
    int next = -1;
    for (int address = 0; address < image.size(); ++address) {
        if (!image.contains(address))
            continue;
        if (address != next)
            text += QString(text.isEmpty() ? "%1:" : " | %1:").arg(address, 3, 16, QChar('0'));
        text += QString(" %1").arg(image.word(address), 5, 16, QChar('0'));
        next = address + 1;
    }
    return text.toUpper();
}

/// What a reader makes of a text: the image, or "line 3: what is wrong".
inline QString readText(const QByteArray& content, const nsImport::ImageOptions& options = {})
{
    const nsImport::ImageResult result = nsImport::ImageReader(options).read(content, "file");
    return result.ok ? imageText(result.image) : QString("line %1: %2").arg(result.errorLine).arg(result.error);
}

inline nsImport::ProgramImage imageOf(const QVector<quint32>& words, int first = 0)
{
    nsImport::ProgramImage image;
    for (int i = 0; i < words.size(); ++i)
        image.setWord(first + i, words.at(i), i + 1, image.addFile("reference"));
    return image;
}

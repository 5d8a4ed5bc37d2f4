#include "Utf8.h"

#include <QTextCodec>

bool Utf8::decode(const QByteArray& bytes, QString* text)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    *text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

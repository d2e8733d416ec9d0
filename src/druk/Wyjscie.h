// What becomes of a print: PDF, pictures, text, CSV.
#pragma once
#include "druk/Uklad.h"
#include <QByteArray>

class QPaintDevice;
class QPainter;

namespace tornel::druk {

/// Sets a painter to the coordinates of a page on a device of this resolution (dots per inch).
void ustawSkale(QPainter& malarz, double rozdzielczosc);
/// Draws a page; the painter stands at the paper's upper left corner.
void MalujStrone(QPainter& malarz, double rozdzielczosc, const Uklad& uklad, int strona);

/// Asked after each page with the number of pages done; false ends the writing.
using PostepStron = std::function<bool(int)>;

/// Writes all pages as one PDF with the print's title. The file is built beside its place and put there
/// whole. False when it was stopped; the file then stays as it was. Throws `Blad` that names the file when it
/// cannot be written.
bool ZapiszPdf(const Uklad& uklad, const QString& plik, const PostepStron& postep = {});
/// Writes each page as a picture NAME-01.png and so on into the folder. Gives the files. Throws `Blad` that
/// names the file.
QStringList ZapiszPng(const Uklad& uklad, const QString& katalog, int rozdzielczosc = 100);
/// The elements of all pages in reading order, a line each: page, place in whole millimetres, text.
[[nodiscard]] QString TekstWydruku(const Uklad& uklad);
/// The named fields of all rows: UTF-8, a header row, semicolons.
[[nodiscard]] QByteArray CsvWydruku(const Uklad& uklad);

} // namespace tornel::druk

// What the desk does with documents, pictures of files and fonts.
#include <QAbstractTextDocumentLayout>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <algorithm>
#include <cmath>

#include "desktop/picture_data.h"
#include "desktop/qt_desk.h"
#include "desktop/qt_raster.h"
#include "desktop/qt_rich_text.h"
#include "desktop/qt_text.h"
#include "engine/fault.h"

namespace tarnmill {

namespace {

constexpr double twips_per_inch = 1440;

/// The rectangle to print in, in dots of the printer from the corner of the paper.
QRectF area_of(const QPrinter& printer, const Desk::PageMargins& margins) {
  const double scale = printer.resolution() / twips_per_inch;
  const QRectF paper = printer.paperRect(QPrinter::DevicePixel);
  return QRectF{QPointF{margins.left * scale, margins.top * scale},
                QPointF{paper.width() - margins.right * scale, paper.height() - margins.bottom * scale}};
}

/// A copy of the document, broken into pages of the size of `area` for the printer.
std::unique_ptr<QTextDocument> laid_out(const QTextDocument& document, QPrinter& printer,
                                        const QRectF& area) {
  std::unique_ptr<QTextDocument> pages{document.clone()};
  pages->setDocumentMargin(0);
  pages->documentLayout()->setPaintDevice(&printer);
  pages->setPageSize(area.size());
  return pages;
}

void print_pages(QPrinter& printer, const QTextDocument& pages, const QRectF& area) {
  QPainter painter;
  if (!painter.begin(&printer)) throw Fault{FaultCode::PrinterError};
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, Qt::black);
  for (int i = 0; i < pages.pageCount(); ++i) {
    if (i > 0 && !printer.newPage()) throw Fault{FaultCode::PrinterError};
    painter.save();
    painter.translate(area.left(), area.top() - i * area.height());
    // A dot less, since a line that begins where the page ends would count as within.
    context.clip = QRectF{0, i * area.height(), area.width(), area.height() - 1};
    painter.setClipRect(context.clip);
    pages.documentLayout()->draw(&painter, context);
    painter.restore();
  }
  if (!painter.end()) throw Fault{FaultCode::PrinterError};
}

}  // namespace

void QtDesk::print_document(const RichText& document, const PageMargins& margins) {
  const std::unique_ptr<QPrinter> printer = make_printer();
  if (!printer) throw Fault{FaultCode::PrinterError};
  printer->setFullPage(true);
  const QTextDocument& source = dynamic_cast<const desktop::QtRichText&>(document).document();
  const QRectF area = area_of(*printer, margins);
  const double line = QFontMetricsF{source.defaultFont(), printer.get()}.height();
  if (area.width() < line || area.height() < line) return;
  print_pages(*printer, *laid_out(source, *printer, area), area);
}

std::unique_ptr<Raster> QtDesk::load_picture(const std::filesystem::path& path) {
  QImage image = desktop::load_image(path);
  if (image.isNull()) return nullptr;
  return std::make_unique<desktop::QtRaster>(std::move(image));
}

std::vector<Text> QtDesk::font_names() {
  std::vector<Text> names;
  for (const QString& each : QFontDatabase::families()) names.push_back(desktop::from_qt(each));
  return names;
}

}  // namespace tarnmill

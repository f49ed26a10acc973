// What the desk prints.
#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QTextBlock>
#include <QTextLayout>

#include "desktop/qt_desk.h"
#include "desktop/qt_raster.h"
#include "desktop/qt_rich_text.h"
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

/// Draws the lines whose middle lies between the two heights, beginning in a paragraph, and gives the
/// paragraph to go on with. The toolkit's own drawing takes in a line of the page before, which is cut off
/// from sight, but there for whoever reads the text of a page.
QTextBlock draw_lines(QPainter& painter, QTextBlock block, double top, double bottom) {
  const QAbstractTextDocumentLayout& layout = *block.document()->documentLayout();
  for (; block.isValid(); block = block.next()) {
    const QRectF place = layout.blockBoundingRect(block);
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
      const QTextLine line = block.layout()->lineAt(i);
      const double middle = place.top() + line.rect().center().y();
      if (middle >= top && middle < bottom) line.draw(&painter, place.topLeft());
    }
    if (place.bottom() > bottom) break;
  }
  return block;
}

void print_pages(QPrinter& printer, const QTextDocument& pages, const QRectF& area) {
  QPainter painter;
  if (!painter.begin(&printer)) throw Fault{FaultCode::PrinterError};
  painter.setPen(Qt::black);
  QTextBlock next = pages.begin();
  for (int i = 0; i < pages.pageCount(); ++i) {
    if (i > 0 && !printer.newPage()) throw Fault{FaultCode::PrinterError};
    painter.save();
    painter.translate(area.left(), area.top() - i * area.height());
    painter.setClipRect(QRectF{0, i * area.height(), area.width(), area.height()});
    if (next.isValid()) next = draw_lines(painter, next, i * area.height(), (i + 1) * area.height());
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

void QtDesk::print_picture(const Raster& picture, double x, double y) {
  constexpr double twips_per_pixel = 15;
  const std::unique_ptr<QPrinter> printer = make_printer();
  if (!printer) throw Fault{FaultCode::PrinterError};
  QPainter painter;
  if (!painter.begin(printer.get())) throw Fault{FaultCode::PrinterError};
  const double scale = printer->resolution() / twips_per_inch;
  const QImage& image = desktop::image_of(picture);
  painter.drawImage(QRectF{x * scale, y * scale, image.width() * twips_per_pixel * scale,
                           image.height() * twips_per_pixel * scale},
                    image);
  if (!painter.end()) throw Fault{FaultCode::PrinterError};
}

}  // namespace tarnmill

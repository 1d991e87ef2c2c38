#include "platform/host/properties/moments.h"
#include "platform/host/properties/pdf_inflate.h"
#include "platform/host/properties/pdf_input.h"
#include "platform/host/properties/readers.h"
#include "platform/host/properties/text_bytes.h"

#include <qpdf/QPDF.hh>

#include <exception>

namespace platform {

namespace {

// The handles count references; their operations are declared to change them.
std::string text_of(QPDFObjectHandle& info, const char* key)
{
    QPDFObjectHandle value = info.getKey(key);
    return value.isString() ? value.getUTF8Value() : std::string();
}

void read_info(QPDFObjectHandle& info, PropertyBag& bag)
{
    bag.set_text(u"System.Title", text_of(info, "/Title"));
    bag.set_text(u"System.Subject", text_of(info, "/Subject"));
    bag.set_list(u"System.Author", tidy_text(decode_bytes(text_of(info, "/Author"))));
    bag.set_list(u"System.Keywords", tidy_text(decode_bytes(text_of(info, "/Keywords"))));
    bag.set_text(u"System.ApplicationName", text_of(info, "/Creator"));
    bag.set_text(u"System.ApplicationName", text_of(info, "/Producer"));
    bag.set_time(u"System.Document.DateCreated", parse_moment(text_of(info, "/CreationDate"), AssumedZone::Local));
    bag.set_time(u"System.Document.DateSaved", parse_moment(text_of(info, "/ModDate"), AssumedZone::Local));
}

/// What the document says of itself: to count the pages would mean to read them all.
void read_catalog(QPDFObjectHandle&& catalog, PropertyBag& bag)
{
    if (!catalog.isDictionary())
        return;
    if (QPDFObjectHandle language = catalog.getKey("/Lang"); language.isString())
        bag.set_text(u"System.Language", language.getUTF8Value());
    QPDFObjectHandle pages = catalog.getKey("/Pages");
    QPDFObjectHandle count = pages.isDictionary() ? pages.getKey("/Count") : QPDFObjectHandle::newNull();
    if (count.isInteger() && count.getIntValue() >= 0)
        bag.set_number(u"System.Document.PageCount", count.getIntValue());
}

}

bool read_pdf(SubjectFile& file, PropertyBag& bag)
{
    if (file.descriptor() < 0)
        return false;
    limit_inflation();
    try {
        QPDF document;
        document.setSuppressWarnings(true);
        // To mend a broken document qpdf would read it whole.
        document.setAttemptRecovery(false);
        document.processInputSource(std::make_shared<PdfInput>(file));
        QPDFObjectHandle trailer = document.getTrailer();
        if (QPDFObjectHandle info = trailer.getKey("/Info"); info.isDictionary())
            read_info(info, bag);
        read_catalog(trailer.getKey("/Root"), bag);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

}

#pragma once

#include "platform/host/properties/subject_file.h"

#include <qpdf/InputSource.hh>

namespace platform {

/// The file as qpdf takes it. A read throws std::runtime_error when the file's allowance is used up.
class PdfInput final : public InputSource
{
public:
    explicit PdfInput(SubjectFile& file) : file_(file) {}

    qpdf_offset_t findAndSkipNextEOL() override;

    std::string const& getName() const override { return name_; }

    qpdf_offset_t tell() override { return position_; }

    void seek(qpdf_offset_t offset, int whence) override;

    void rewind() override { position_ = 0; }

    size_t read(char* out, size_t length) override;

    void unreadCh(char) override { position_ -= position_ > 0; }

private:
    SubjectFile& file_;
    std::string name_ = "document";
    qpdf_offset_t position_ = 0;
};

}

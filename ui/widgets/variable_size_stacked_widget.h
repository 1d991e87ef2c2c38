#pragma once

#include <QWidget>

#include <vector>

class QVBoxLayout;

/// Shows one of its pages and is as high as that one: unlike in a QStackedWidget hidden pages don't count. Main
/// thread only.
class VariableSizeStackedWidget : public QWidget
{
    Q_OBJECT

public:
    explicit VariableSizeStackedWidget(QWidget* parent = nullptr);

    /// Returns the page's index. The first page becomes the current one, others wait hidden.
    int add_page(QWidget* page);
    /// -1 when it is no page.
    int index_of(const QWidget* page) const;

    /// -1 without pages.
    int current_index() const { return current_index_; }

    /// Null without pages.
    QWidget* current_widget() const;

public slots:
    /// An index out of range changes nothing.
    void setCurrentIndex(int index); // NOLINT(readability-identifier-naming): as in QStackedWidget
    /// What is no page changes nothing.
    void setCurrentWidget(QWidget* page); // NOLINT(readability-identifier-naming)

private:
    QVBoxLayout* layout_ = nullptr;
    std::vector<QWidget*> pages_;
    int current_index_ = -1;
};

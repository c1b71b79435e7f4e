#include "Site.h"
#include "Stopwatch.h"
#include "Workload.h"

#include "dialogs/EditNodeDialog.h"
#include "drivers/InspectorPages.h"
#include "ko/Node.h"

#include <QDialogButtonBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace bench {

using namespace ko;

namespace {

/// The dialog of one camera, opened and painted.
class Editing : public Contest
{
public:
    explicit Editing(int size)
        : m_db(bench::open(siteFile(size)))
        , m_id(m_db->nodeIdList(AllNodeTypes).value(size / 2))
    {
        m_db->node(m_id)->name();
    }

    double ours() override
    {
        std::unique_ptr<EditNodeDialog> dialog;
        return milliseconds([&] {
            dialog = std::make_unique<EditNodeDialog>(m_id, nullptr, false, 17, nullptr);
            paint(*dialog);
        });
    }

    /// The same pages, empty, in the same tabs.
    double baseline() override
    {
        std::unique_ptr<QDialog> dialog;
        std::vector<std::unique_ptr<InspectorPage>> pages;
        const double time = milliseconds([&] {
            dialog = std::make_unique<QDialog>();
            QTabWidget* tabs = new QTabWidget;
            QVBoxLayout* layout = new QVBoxLayout(dialog.get());
            layout->addWidget(tabs);
            layout->addWidget(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                                   QDialogButtonBox::Apply));
            const QVector<PageSpec> specs = pagesOf(IPDeviceType);
            QWidget* tab = nullptr;
            for (const PageSpec& spec : specs) {
                if (!tab || tab->objectName() != QLatin1String(spec.tab)) {
                    tab = new QWidget;
                    tab->setObjectName(QLatin1String(spec.tab));
                    new QVBoxLayout(tab);
                    tabs->addTab(tab, QLatin1String(spec.title));
                }
                pages.push_back(spec.create(tab));
                tab->layout()->addWidget(pages.back()->widget());
            }
            paint(*dialog);
        });
        return time;
    }

private:
    const std::unique_ptr<HostNodeDB> m_db;
    const QString m_id;
};

} // namespace

QVector<Workload> dialogWorkloads()
{
    return {
        {QStringLiteral("dialog of a camera, to its first picture"),
         QStringLiteral("the same pages without a database"), 1.3, allSizes,
         [](int size) { return std::make_unique<Editing>(size); }, false},
    };
}

} // namespace bench

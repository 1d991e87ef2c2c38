#include "app/duplicate_name.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

struct Case {
    CommandNames old;
    std::vector<std::u16string> taken;
    CommandNames expected;
};

TEST(DuplicateName, FindsTheNextFreeEnding)
{
    const Case cases[] = {
        {{u"Report", u""}, {}, {u"Report (Copy)", u""}},
        {{u"Report", u""}, {u"Report (Copy)"}, {u"Report (Copy 2)", u""}},
        {{u"Report", u""}, {u"Report (copy)"}, {u"Report (Copy)", u""}},
        {{u"Report (Copy)", u""}, {}, {u"Report (Copy 2)", u""}},
        {{u"Report (copy 7)", u""}, {}, {u"Report (Copy 8)", u""}},
        {{u"Report (COPY  7)", u""}, {u"Report (Copy 8)", u"Report (Copy 9)"}, {u"Report (Copy 10)", u""}},
        {{u"Report (Copy 0)", u""}, {u"Report (Copy)"}, {u"Report (Copy 2)", u""}},
        {{u"Report (Copy 99999999999)", u""}, {}, {u"Report (Copy)", u""}},
        {{u"Report (Copy 2147483647)", u""}, {}, {u"Report (Copy 2147483648)", u""}},
        {{u"Report (Copy) old", u""}, {}, {u"Report (Copy) old (Copy)", u""}},
        {{u"Report  (Copy)", u""}, {}, {u"Report  (Copy 2)", u""}},
        {{u"Report(copy)", u""}, {}, {u"Report (Copy 2)", u""}},
        {{u"", u""}, {}, {u" (Copy)", u""}},
        {{u"Names", u"Name"}, {u"Names (Copy)"}, {u"Names (Copy 2)", u"Name (Copy 2)"}},
        {{u"Names", u"Name (copy 9)"}, {}, {u"Names (Copy)", u"Name (Copy)"}},
    };
    for (const Case& c : cases) {
        const CommandNames fresh =
            duplicate_names(c.old, [&](std::u16string_view name) { return std::ranges::count(c.taken, name) > 0; });
        EXPECT_EQ(fresh.name, c.expected.name);
        EXPECT_EQ(fresh.name1, c.expected.name1);
    }
}

TEST(DuplicateName, GivesUpAfterAThousandTries)
{
    int asked = 0;
    const CommandNames fresh = duplicate_names({u"A", u""}, [&](std::u16string_view) { return ++asked > 0; });
    EXPECT_EQ(fresh.name, u"A (Copy 1000)");
    EXPECT_LE(asked, 1000);
}

}

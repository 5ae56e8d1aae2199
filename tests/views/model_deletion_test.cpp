// A slot may delete the model that calls it.

#include "tests/support/slot.h"
#include "tests/views/items.h"
#include "vexel/views/continuous_item_view_model.h"
#include "vexel/views/discrete_item_view_model.h"
#include "vexel/views/selection_model.h"

#include <gtest/gtest.h>

#include <functional>

using namespace vexel;

namespace
{

// Counts signals, and deletes the model with the one of that number.
template <class Model> class CKiller
{
public:
    CKiller(Model& model, int number) : m_Model(&model), m_Left(number)
    {
        m_Changed = Listen(model.m_SigChanged, [this] { Called(); });
        if constexpr (std::is_base_of_v<IBaseItemViewModel, Model>)
            m_Others.push_back(Listen(model.m_SigSizeChanged, [this](int, int, bool*) { Called(); }));
        else
        {
            m_Others.push_back(Listen(model.m_SigCurrentChanged, [this](int, int) { Called(); }));
            m_Others.push_back(Listen(model.m_SigSelectionChanged, [this] { Called(); }));
        }
    }
    bool HasKilled() const { return m_Left <= 0; }

private:
    void Called()
    {
        EXPECT_FALSE(HasKilled()) << "called by the dead";
        if (--m_Left == 0)
            delete m_Model;
    }

    Model* m_Model;
    int m_Left;
    std::unique_ptr<plinth::subscriber_base_t> m_Changed;
    std::vector<std::unique_ptr<plinth::subscriber_base_t>> m_Others;
};

// Deletes the model in the first, second, ... signal of the deed. Gives back how many there are.
template <class Model>
int DieInEach(std::function<void(Model&)> const& prepare, std::function<void(Model&)> const& deed)
{
    for (int number = 1;; ++number)
    {
        auto* const model = new Model;
        prepare(*model);
        CKiller<Model> const killer(*model, number);
        deed(*model);
        if (killer.HasKilled())
            continue;
        delete model;
        return number - 1;
    }
}

template <class Model> class ModelDeletion : public testing::Test
{
protected:
    static void Prepare(Model& model)
    {
        if constexpr (std::is_same_v<CEqualItemsViewModel, Model>)
            model.SetItemSizeBounds(20, 20);
        model.SetDefaultItemSize(20);
        model.SetCount(10);
        model.SetViewSize(100, false);
        if constexpr (std::is_base_of_v<IDiscreteItemViewModel, Model>)
            model.SetStartItem(5);
        else
            model.SetOffset(100);
    }
    static int Die(std::function<void(Model&)> const& deed) { return DieInEach<Model>(Prepare, deed); }
};

using Models = testing::Types<CSimpleDiscreteItemViewModel, CEqualItemsViewModel, CDefaultDiscreteItemViewModel,
                              CNonEqualItemsViewModel, CDefaultColumnViewModel>;
TYPED_TEST_SUITE(ModelDeletion, Models, );

TYPED_TEST(ModelDeletion, ByASlotOfASetter)
{
    using Model = TypeParam;
    EXPECT_GE(this->Die([](Model& model) { model.SetCount(3); }), 1);
    EXPECT_GE(this->Die([](Model& model) { model.SetDefaultItemSize(7); }), 1);
    EXPECT_GE(this->Die([](Model& model) { model.SetViewSize(190, false); }), 1);
    EXPECT_GE(this->Die([](Model& model) { model.SetViewSize(60, true); }), 1);
    EXPECT_GE(this->Die([](Model& model) { model.SetStretchLastItem(true); }), 1);
}

TYPED_TEST(ModelDeletion, ByASlotOfAScroll)
{
    using Model = TypeParam;
    auto const scroll = [](Model& model) {
        if constexpr (std::is_base_of_v<IDiscreteItemViewModel, Model>)
        {
            model.SetStartItem(4);
        }
        else
            model.SetOffset(30);
    };
    EXPECT_EQ(this->Die(scroll), 2);
}

TEST(ModelsMayDie, ByASlotOfASizeOfItsOwn)
{
    auto const rows = [](CDefaultDiscreteItemViewModel& model) {
        model.SetDefaultItemSize(20);
        model.SetCount(10);
        model.SetViewSize(200, false);
        model.SetStartItem(1);
    };
    auto const setSize = [](IBaseItemViewModel& model) { model.SetItemSize(2, 50); };
    EXPECT_EQ(DieInEach<CDefaultDiscreteItemViewModel>(rows, setSize), 2);
    auto const columns = [](CDefaultColumnViewModel& model) { model.SetCount(10); };
    EXPECT_EQ(DieInEach<CDefaultColumnViewModel>(columns, setSize), 2);
    auto const translate = [](IBaseItemsModel& model) {
        CMoveTranslator moved(1, 0);
        model.UpdateModelState(&moved);
    };
    EXPECT_EQ(DieInEach<CDefaultDiscreteItemViewModel>(rows, translate), 2);
}

TEST(ModelsMayDie, ByASlotOfALargeItem)
{
    auto const prepare = [](COneItemViewModel& model) {
        model.SetItemSize(0, 500);
        model.SetViewSize(100, false);
        model.OnEndDraw();
        model.SetOffset(400);
        model.OnEndDraw();
    };
    EXPECT_EQ(DieInEach<COneItemViewModel>(prepare, [](COneItemViewModel& model) { model.SetOffset(5); }), 2);
    EXPECT_EQ(DieInEach<COneItemViewModel>(prepare, [](COneItemViewModel& model) { model.SetViewSize(150, false); }),
              2);
}

TEST(ModelsMayDie, ByASlotOfASelection)
{
    using Model = CDefaultSelectionModel;
    auto const prepare = [](Model& model) {
        model.SetCurrent(1);
        model.SetSelectionRange(1, 3);
    };
    EXPECT_EQ(DieInEach<Model>(prepare, [](Model& model) { model.SetCurrent(5); }), 2);
    EXPECT_EQ(DieInEach<Model>(prepare, [](Model& model) { model.SelectItem(5, true); }), 2);
    EXPECT_EQ(DieInEach<Model>(prepare, [](Model& model) { model.SelectItem(2, false); }), 1);
    EXPECT_EQ(DieInEach<Model>(prepare, [](Model& model) { model.SetSelectionRange(5, 6); }), 2);
    EXPECT_EQ(DieInEach<Model>(prepare, [](Model& model) { model.CSelectionModelBase::SetSelectionRange(5, 6); }), 2);
    EXPECT_EQ(DieInEach<Model>(prepare, [](Model& model) { model.ClearSelection(); }), 1);
    auto const translate = [](Model& model) {
        CMoveTranslator moved(1, 8);
        model.UpdateModelState(&moved);
    };
    EXPECT_EQ(DieInEach<Model>(prepare, translate), 3);
}

}  // namespace

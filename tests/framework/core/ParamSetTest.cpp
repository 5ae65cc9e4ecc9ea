// Saving, restoring and freezing of the whole set, and the other state managers.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/ParamSet.h"
#include "framework/core/FrozenPresetStateManager.h"
#include "framework/core/ParamBool.h"
#include "framework/core/ParamFloat.h"
#include "framework/core/PreferencesStateManager.h"

#include <gtest/gtest.h>

using namespace zembra;

namespace
{

struct ChangeCounter final : PresetStateManager::Listener
{
    void stateChanged() override { ++count; }
    int count = 0;
};

class ParamSetTest : public testing::Test
{
protected:
    ParamSetTest() { meta.setMeta (true); }

    ParamSet set{ "params" };
    ParamFloat& plain = *new ParamFloat ("plain", "Plain", &set, 5.0, -10.0, 10.0, 0.1, "");
    ParamFloat& meta = *new ParamFloat ("meta", "Meta", &set, 5.0, -10.0, 10.0, 0.1, "");
    ParamFloat& transient = *new ParamFloat ("transient", "T", &set, 5.0, -10.0, 10.0, 0.1, "");
    juce::XmlElement element{ "PARAMS" };
};

TEST_F (ParamSetTest, FindsParametersByExactId)
{
    EXPECT_EQ (set.getName(), "PARAMS");
    EXPECT_EQ (set.getParam ("meta"), &meta);
    EXPECT_EQ (set.getParam ("Meta"), nullptr);
    EXPECT_EQ (set.getParam (7), nullptr);
    EXPECT_EQ (set.indexOf (&transient), 2);
    EXPECT_EQ (set.indexOf (nullptr), -1);
}

TEST_F (ParamSetTest, SendsAMissingPlainParameterToItsDefaultAndAMissingMetaToItsMinimum)
{
    for (auto* param : set)
        param->setValue (7.0, sourceHost);

    set.loadFromXml (element);
    EXPECT_DOUBLE_EQ (plain.getValue(), 5.0);
    EXPECT_DOUBLE_EQ (meta.getValue(), -10.0);
}

TEST_F (ParamSetTest, RestoresMetaParametersFirst)
{
    struct Order final : Param::Listener
    {
        void paramChanged (Param* param, double, double, int) override { ids.add (param->getId()); }
        juce::StringArray ids;
    } order;

    for (auto* param : set)
        param->addListener (&order);

    order.ids.clear();
    element.setAttribute ("plain", 1.0);
    element.setAttribute ("meta", 2.0);
    element.setAttribute ("transient", 3.0);
    set.loadFromXml (element);
    EXPECT_EQ (order.ids.joinIntoString (" "), "meta plain transient");

    for (auto* param : set)
        param->removeListener (&order);
}

TEST_F (ParamSetTest, LeavesOutWhatIsNotStoredAndWhatIsFrozen)
{
    transient.setStored (false);
    set.saveToXml (element);
    EXPECT_FALSE (element.hasAttribute ("transient"));
    EXPECT_DOUBLE_EQ (element.getDoubleAttribute ("plain"), 5.0);

    element.setAttribute ("plain", 1.0);
    element.setAttribute ("meta", 1.0);
    element.setAttribute ("transient", 1.0);
    plain.changeFrozen (true);
    meta.changeFrozen (true);
    set.loadFromXml (element);

    for (auto* param : set)
        EXPECT_DOUBLE_EQ (param->getValue(), 5.0) << param->getId();
}

TEST_F (ParamSetTest, RestoresWhatItSaved)
{
    plain.setValue (-3.3333333333, sourceHost);
    meta.setValue (9.87, sourceHost);
    set.saveToXml (element);
    const auto before = element.toString();
    plain.setValue (0.0, sourceHost);
    set.loadFromXml (element);
    EXPECT_FLOAT_EQ (static_cast<float> (plain.getValue()), -3.3333333333f);
    EXPECT_DOUBLE_EQ (meta.getValue(), 9.87) << "less than a quarter step away: not moved";
}

TEST_F (ParamSetTest, KeepsValuesInRangeWhateverTheTextSays)
{
    for (const auto* text : { "nan", "inf", "-inf", "1e308", "-1e999", "", "x", "0x10" })
    {
        element.setAttribute ("plain", text);
        element.setAttribute ("meta", text);
        set.loadFromXml (element);

        for (auto* param : { &plain, &meta })
        {
            EXPECT_GE (param->getValue(), -10.0) << text;
            EXPECT_LE (param->getValue(), 10.0) << text;
        }
    }

    element.setAttribute ("plain", "nan");
    set.setDefaultsFromXml (element);
    EXPECT_DOUBLE_EQ (plain.getDefaultValue(), 5.0);
}

TEST_F (ParamSetTest, TakesNewDefaultsWithoutMovingValues)
{
    element.setAttribute ("plain", 2.0);
    set.setDefaultsFromXml (element);
    EXPECT_DOUBLE_EQ (plain.getDefaultValue(), 2.0);
    EXPECT_DOUBLE_EQ (meta.getDefaultValue(), 5.0);
    EXPECT_DOUBLE_EQ (plain.getValue(), 5.0);
}

TEST_F (ParamSetTest, TellsItsStateListenersOfEveryChange)
{
    ChangeCounter counter;
    set.addListener (&counter);
    plain.setValue (1.0, sourceHost);
    plain.setValue (2.0, sourceState);
    plain.setValue (2.01, sourceEditor);
    set.removeListener (&counter);
    plain.setValue (3.0, sourceHost);
    EXPECT_EQ (counter.count, 2);
}

TEST_F (ParamSetTest, SavesAndRestoresFrozenMarks)
{
    FrozenPresetStateManager frozen (set);
    EXPECT_EQ (frozen.getName(), "FROZENPARAMS");
    meta.changeFrozen (true);
    juce::XmlElement parent ("Vorlo");
    frozen.saveToParent (parent);
    EXPECT_EQ (parent.getChildByName ("FROZENPARAMS")->getStringAttribute ("meta"), "1");

    meta.changeFrozen (false);
    transient.setFreezable (false);
    parent.getChildByName ("FROZENPARAMS")->setAttribute ("transient", "1");
    EXPECT_TRUE (frozen.loadFromParent (parent));
    EXPECT_TRUE (meta.isFrozen());
    EXPECT_FALSE (plain.isFrozen());
    EXPECT_FALSE (transient.isFrozen());

    juce::StringPairArray states;
    states.set ("meta", "0");
    states.set ("plain", "1");
    set.setFrozenStates (states);
    EXPECT_FALSE (meta.isFrozen());
    EXPECT_TRUE (plain.isFrozen());
}

TEST_F (ParamSetTest, FindsItsElementByTagOrType)
{
    struct Typed final : PresetStateManager
    {
        Typed() : PresetStateManager ("MIDImapping", "kind") {}
        void saveToXml (juce::XmlElement& e) override { e.setAttribute ("value", value); }
        void loadFromXml (const juce::XmlElement& e) override
        {
            value = e.getIntAttribute ("value");
        }
        int value = 7;
    } typed;

    juce::XmlElement parent ("Root");
    EXPECT_FALSE (set.loadFromParent (parent));
    parent.createNewChildElement ("MIDImapping");
    EXPECT_FALSE (typed.canLoadXml (parent)) << "tags are in upper case";
    typed.saveToParent (parent);
    EXPECT_EQ (parent.getChildElement (1)->getTagName(), "MIDIMAPPING");
    EXPECT_EQ (parent.getChildElement (1)->getStringAttribute ("type"), "KIND");
    typed.value = 0;
    EXPECT_TRUE (typed.loadFromParent (parent));
    EXPECT_EQ (typed.value, 7);

    juce::XmlElement old ("Old");
    old.setAttribute ("type", "KIND");
    EXPECT_TRUE (typed.loadFromParent (old)) << "nothing inside, and nothing changes";
    EXPECT_EQ (typed.value, 7);
    old.createNewChildElement ("ANY")->setAttribute ("value", 3);
    EXPECT_TRUE (typed.loadFromParent (old));
    EXPECT_EQ (typed.value, 3);
}

TEST_F (ParamSetTest, MergesPreferencesByKeyWithoutCase)
{
    PreferencesStateManager preferences;
    preferences.getValues().set ("skin", "dark");
    preferences.getValues().set ("zoom", "2");
    juce::XmlElement parent ("Vorlo");
    auto* child = parent.createNewChildElement ("INSTANCEPREFS");
    child->setAttribute ("SKIN", "light");
    child->setAttribute ("new", "x");
    EXPECT_TRUE (preferences.loadFromParent (parent));
    EXPECT_EQ (preferences.getValues()["skin"], "light");
    EXPECT_EQ (preferences.getValues()["zoom"], "2");
    EXPECT_EQ (preferences.getValues()["new"], "x");
}

} // namespace

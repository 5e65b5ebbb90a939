#pragma once

// An action with one property of every kind, for the project reader's tests and its fuzz target.
#include "WFAction.h"
#include "WFServices.h"

#include <string>

namespace wftest {

enum TColour { clRed, clGreen, clBlue };

class TPropertiesAction final : public TWFExecuteAbstractAction {
public:
    TPropertiesAction()
    {
        PublishString("Text", [this] { return m_text; }, [this](const std::string& v) { m_text = v; });
        PublishBoolean("Flag", [this] { return m_flag; }, [this](bool v) { m_flag = v; });
        PublishInteger("Count", [this] { return m_count; }, [this](long long v) { m_count = v; });
        PublishEnum("Colour", {"clRed", "clGreen", "clBlue"}, &m_colour);
        // Publishing again keeps the first position.
        PublishString("Text", [this] { return m_text; }, [this](const std::string& v) { m_text = v; });
    }
    std::string GetActionName() const override { return "Properties"; }
    std::string m_text;
    bool m_flag = false;
    long long m_count = 0;
    TColour m_colour = clRed;
};

/// Registers the action as "T_PROPS".
inline void registerPropertiesAction()
{
    WFActionServices().RegisterAction("Properties", "Test", WFActionClassOf<TPropertiesAction>("TPropertiesAction"), "T_PROPS");
}

} // namespace wftest

#include "support/component_under_test.h"

namespace tamur::test {

Component& TheComponent()
{
    static Component component(TAMUR_COMPONENT_PATH);
    return component;
}

}  // namespace tamur::test

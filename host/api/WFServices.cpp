#include "WFServices.h"

TWFDesignApplicationServices& WFDesignApplicationServices()
{
    static TWFDesignApplicationServices services;
    return services;
}

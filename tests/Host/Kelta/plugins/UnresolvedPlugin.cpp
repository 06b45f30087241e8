extern "C" {

void nobodyHasThisFunction();

__attribute__((visibility("default"))) void enter()
{
    nobodyHasThisFunction();
}
}

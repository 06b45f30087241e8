namespace {

int calls = 0;

} // namespace

extern "C" {

__attribute__((visibility("default"))) void enter()
{
    ++calls;
}

__attribute__((visibility("default"))) void enterGui()
{
    calls += 100;
}

__attribute__((visibility("default"))) int callCount()
{
    return calls;
}
}

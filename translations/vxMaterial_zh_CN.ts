<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CmdMatExport</name>
    <message>
        <source>Export materials</source>
        <translation>导出材料</translation>
    </message>
    <message>
        <source>Export materials to JSON file</source>
        <translation>将材料导出到 JSON 文件</translation>
    </message>
    <message>
        <source>JSON file(*.json)</source>
        <translation>JSON 文件(*.json)</translation>
    </message>
</context>
<context>
    <name>CmdMatImport</name>
    <message>
        <source>Import materials</source>
        <translation>导入材料</translation>
    </message>
    <message>
        <source>Import CSV file into material</source>
        <translation>将 CSV 文件导入材料</translation>
    </message>
    <message>
        <source>Import file</source>
        <translation>导入文件</translation>
    </message>
    <message>
        <source>All (*)</source>
        <translation>所有 (*)</translation>
    </message>
</context>
<context>
    <name>ComboBoxItemDelegate</name>
    <message>
        <source>one in row %1</source>
        <translation>第 %1 行之一</translation>
    </message>
    <message>
        <source>two in row %1</source>
        <translation>第 %1 行之二</translation>
    </message>
    <message>
        <source>three in row %1</source>
        <translation>第 %1 行之三</translation>
    </message>
</context>
<context>
    <name>FileCommand</name>
    <message>
        <source>Open project</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save the project in its file</source>
        <translation>将项目保存到其文件</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>另存为(&amp;A)...</translation>
    </message>
    <message>
        <source>Save the project in another file</source>
        <translation>将项目保存到另一个文件</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>最近打开(&amp;R)</translation>
    </message>
    <message>
        <source>Open one of the projects last used</source>
        <translation>打开最近使用的项目之一</translation>
    </message>
    <message>
        <source>Exchange document (*.json)</source>
        <translation>交换文档 (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Open a project from a file</source>
        <translation>从文件打开项目</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>最近的项目</translation>
    </message>
    <message>
        <source>Project (*.vxmat)</source>
        <translation>项目 (*.vxmat)</translation>
    </message>
    <message>
        <source>Hand over to the solver</source>
        <translation>移交给求解器</translation>
    </message>
    <message>
        <source>Only what has been applied is handed over.</source>
        <translation>只移交已应用的内容。</translation>
    </message>
    <message>
        <source>&amp;Hand over without them</source>
        <translation>不含这些内容移交(&amp;H)</translation>
    </message>
    <message>
        <source>Import document or deck</source>
        <translation>导入文档或输入文件</translation>
    </message>
    <message>
        <source>I&amp;mport document or deck...</source>
        <translation>导入文档或输入文件(&amp;M)...</translation>
    </message>
    <message>
        <source>Add the content of an exchange document or of the deck of a solver to the project</source>
        <translation>将交换文档或求解器输入文件的内容添加到项目</translation>
    </message>
</context>
<context>
    <name>Gui::ColorChoice</name>
    <message>
        <source>Choose color</source>
        <translation>选择颜色</translation>
    </message>
    <message>
        <source>The color cannot be set</source>
        <translation>无法设置颜色</translation>
    </message>
</context>
<context>
    <name>Gui::Command</name>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>没有命令“%1”。</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; failed</source>
        <translation>命令“%1”失败</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>Gui::CoreEditor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened: its editor &quot;%2&quot; is missing. The module of the editor may not be loaded.</source>
        <translation>无法打开“%1”：缺少编辑器“%2”。该编辑器的模块可能未加载。</translation>
    </message>
</context>
<context>
    <name>Gui::DockSet</name>
    <message>
        <source>The docking window &quot;%1&quot; cannot be made</source>
        <translation>无法创建停靠窗口“%1”</translation>
    </message>
</context>
<context>
    <name>Gui::ExplorerPane</name>
    <message>
        <source>Filter of the project explorer</source>
        <translation>项目浏览器的筛选器</translation>
    </message>
    <message>
        <source>The project explorer cannot be filtered</source>
        <translation>无法筛选项目浏览器</translation>
    </message>
    <message>
        <source>Matches: %1 of %2</source>
        <translation>匹配：%1 / %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not match and is hidden.</source>
        <translation>“%1”不匹配，已隐藏。</translation>
    </message>
    <message>
        <source>New or changed objects that do not match and are hidden: %1</source>
        <translation>不匹配而被隐藏的新对象或已更改的对象：%1</translation>
    </message>
</context>
<context>
    <name>Gui::FilterField</name>
    <message>
        <source>The text cannot be completed</source>
        <translation>无法补全文本</translation>
    </message>
</context>
<context>
    <name>Gui::GeneralPage</name>
    <message>
        <source>&amp;Language:</source>
        <translation>语言(&amp;L)：</translation>
    </message>
    <message>
        <source>Now in use: %1, the language given at the start.</source>
        <translation>当前使用：%1，即启动时指定的语言。</translation>
    </message>
</context>
<context>
    <name>Gui::GuiApplication</name>
    <message>
        <source>An error occurred</source>
        <translation>出现错误</translation>
    </message>
</context>
<context>
    <name>Gui::GuiProject</name>
    <message>
        <source>The tree node &quot;%1&quot; cannot be made</source>
        <translation>无法创建树节点“%1”</translation>
    </message>
    <message>
        <source>The properties of a tree node cannot be restored</source>
        <translation>无法恢复树节点的属性</translation>
    </message>
</context>
<context>
    <name>Gui::MDIWindow</name>
    <message>
        <source>An edit in &quot;%1&quot; cannot be completed</source>
        <translation>无法完成“%1”中的编辑</translation>
    </message>
</context>
<context>
    <name>Gui::MainWindow</name>
    <message>
        <source>There is no workbench &quot;%1&quot;.</source>
        <translation>没有工作台“%1”。</translation>
    </message>
    <message>
        <source>Project explorer</source>
        <translation>项目浏览器</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>Gui::MessageLogView</name>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Double-click the message, or press Return, to go to the object.</source>
        <translation>双击消息或按回车键可转到该对象。</translation>
    </message>
    <message>
        <source>The object of a message cannot be shown</source>
        <translation>无法显示消息所指的对象</translation>
    </message>
    <message>
        <source>The object of this message has been deleted or closed.</source>
        <translation>此消息所指的对象已被删除或关闭。</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>C&amp;lear messages</source>
        <translation>清空消息(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Gui::ObjectClipboard</name>
    <message>
        <source>These properties of &quot;%1&quot; could not be pasted: %2.</source>
        <translation>“%1”的以下属性无法粘贴：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be pasted into &quot;%2&quot;: a project of this kind does not take such objects. Nothing was pasted.</source>
        <translation>无法将“%1”粘贴到“%2”：这种项目不接受此类对象。未粘贴任何内容。</translation>
    </message>
    <message>
        <source>An object cannot be pasted completely</source>
        <translation>无法完整粘贴一个对象</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 副本</translation>
    </message>
    <message>
        <source>The settings are not an object.</source>
        <translation>设置不是对象。</translation>
    </message>
    <message>
        <source>The setting &quot;%1&quot; is not a text.</source>
        <translation>设置“%1”不是文本。</translation>
    </message>
</context>
<context>
    <name>Gui::PictureFactory</name>
    <message>
        <source>The picture %1 is missing.</source>
        <translation>缺少图片 %1。</translation>
    </message>
</context>
<context>
    <name>Gui::PreferencesDialog</name>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>A page of the preferences cannot be made</source>
        <translation>无法创建首选项页面</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>A page of the preferences cannot be stored</source>
        <translation>无法保存首选项页面</translation>
    </message>
    <message>
        <source>The preferences are in use, but cannot be stored for the next start: &quot;%1&quot; cannot be written.</source>
        <translation>首选项已生效，但无法保存到下次启动：“%1”无法写入。</translation>
    </message>
</context>
<context>
    <name>Gui::ProjectExplorer</name>
    <message>
        <source>Project explorer</source>
        <translation>项目浏览器</translation>
    </message>
    <message>
        <source>Display as</source>
        <translation>显示方式</translation>
    </message>
</context>
<context>
    <name>Gui::ProjectTreeModel</name>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Empty: nothing is defined yet</source>
        <translation>空：尚未定义任何内容</translation>
    </message>
    <message>
        <source>
Suppressed</source>
        <translation>
已抑制</translation>
    </message>
    <message>
        <source>The module for &quot;%1&quot; is not loaded. Its data are saved unchanged, but cannot be edited.</source>
        <translation>“%1”所需的模块未加载。其数据将原样保存，但无法编辑。</translation>
    </message>
    <message>
        <source>Not ready. Findings: %1</source>
        <translation>未就绪。检查结果：%1</translation>
    </message>
</context>
<context>
    <name>Gui::PropertyDelegate</name>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>Gui::PropertyPanel</name>
    <message>
        <source>Nothing is selected.</source>
        <translation>未选择任何内容。</translation>
    </message>
    <message>
        <source>%1 entries are selected.</source>
        <translation>已选择 %1 项。</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>Gui::Translator</name>
    <message>
        <source>The translation %1 cannot be read; its texts are shown in English.</source>
        <translation>无法读取翻译 %1；其文本以英文显示。</translation>
    </message>
</context>
<context>
    <name>Gui::TreeFilter</name>
    <message>
        <source>Filter by label</source>
        <translation>按名称筛选</translation>
    </message>
    <message>
        <source>Shows only objects whose labels have all of these words.</source>
        <translation>只显示名称包含所有这些词的对象。</translation>
    </message>
</context>
<context>
    <name>Gui::WelcomePage</name>
    <message>
        <source>No project is open</source>
        <translation>没有打开的项目</translation>
    </message>
    <message>
        <source>The project is empty</source>
        <translation>项目为空</translation>
    </message>
    <message>
        <source>The project menu offers what can be added.</source>
        <translation>“项目”菜单列出可添加的内容。</translation>
    </message>
    <message>
        <source>No document is open</source>
        <translation>未打开任何文档</translation>
    </message>
    <message>
        <source>Double-click an object in the project explorer.</source>
        <translation>请在项目浏览器中双击一个对象。</translation>
    </message>
    <message>
        <source>No module is loaded</source>
        <translation>未加载任何模块</translation>
    </message>
    <message>
        <source>Make a new project, or open a saved one.</source>
        <translation>请新建项目，或打开已保存的项目。</translation>
    </message>
    <message>
        <source>The message log names the modules that could not be loaded, and the reasons.</source>
        <translation>消息日志列出了无法加载的模块及其原因。</translation>
    </message>
</context>
<context>
    <name>HelpCommand</name>
    <message>
        <source>&amp;Guide</source>
        <translation>指南(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>按键(&amp;K)</translation>
    </message>
    <message>
        <source>Show the keys of all commands</source>
        <translation>显示所有命令的按键</translation>
    </message>
    <message>
        <source>Open &amp;example project</source>
        <translation>打开示例项目(&amp;E)</translation>
    </message>
    <message>
        <source>Open a copy of the example project</source>
        <translation>打开示例项目的副本</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>指南</translation>
    </message>
    <message>
        <source>Show the guide to the program, or close it</source>
        <translation>显示或关闭程序指南</translation>
    </message>
</context>
<context>
    <name>Kelta</name>
    <message>
        <source>an exception without a text</source>
        <translation>没有文本的异常</translation>
    </message>
    <message>
        <source>an exception of an unknown kind</source>
        <translation>未知类型的异常</translation>
    </message>
    <message>
        <source>a text has a character that XML cannot hold</source>
        <translation>文本中含有 XML 不允许的字符</translation>
    </message>
    <message>
        <source>this is not a file</source>
        <translation>这不是文件</translation>
    </message>
    <message>
        <source>A listener of the message log failed: %1</source>
        <translation>消息日志的一个监听器失败：%1</translation>
    </message>
</context>
<context>
    <name>Kelta::DataPersistence</name>
    <message>
        <source>%1: this file does not hold an object of the application</source>
        <translation>%1：该文件不包含本应用程序的对象</translation>
    </message>
    <message>
        <source>%1: this file holds an object of class &quot;%2&quot;; one of &quot;%3&quot; is needed</source>
        <translation>%1：该文件包含类“%2”的对象；需要类“%3”的对象</translation>
    </message>
</context>
<context>
    <name>Kelta::ModuleDescriptor</name>
    <message>
        <source>the descriptor is not a file</source>
        <translation>描述符不是文件</translation>
    </message>
    <message>
        <source>the descriptor cannot be read: %1</source>
        <translation>无法读取描述符：%1</translation>
    </message>
    <message>
        <source>the descriptor is larger than %1 bytes</source>
        <translation>描述符大于 %1 字节</translation>
    </message>
    <message>
        <source>the descriptor is not JSON: %1 at byte %2</source>
        <translation>描述符不是 JSON：%1，位于第 %2 字节</translation>
    </message>
    <message>
        <source>the descriptor is not a JSON object</source>
        <translation>描述符不是 JSON 对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the descriptor is not a text</source>
        <translation>描述符中的“%1”不是文本</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in the descriptor</source>
        <translation>描述符中缺少“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &quot;%2&quot; in the descriptor is not a version; an example of one is &quot;0.1.0&quot;</source>
        <translation>描述符中“%2”的“%1”不是版本号；例如“0.1.0”</translation>
    </message>
    <message>
        <source>it needs version %1 of the program, which has version %2</source>
        <translation>它需要程序的版本 %1，而程序版本为 %2</translation>
    </message>
    <message>
        <source>&quot;library&quot; in the descriptor is &quot;%1&quot;; it must be a file beside the descriptor, without a folder</source>
        <translation>描述符中的“library”为“%1”；它必须是描述符旁边的文件，不带文件夹</translation>
    </message>
    <message>
        <source>&quot;entries&quot; in the descriptor is not a list of names of functions</source>
        <translation>描述符中的“entries”不是函数名列表</translation>
    </message>
    <message>
        <source>&quot;needs&quot; in the descriptor is not an object of modules with their versions</source>
        <translation>描述符中的“needs”不是由模块及其版本组成的对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the descriptor is unknown; the known members are %2</source>
        <translation>描述符中的“%1”未知；已知的成员有 %2</translation>
    </message>
    <message>
        <source>&quot;module&quot; in the descriptor is &quot;%1&quot;, which differs from the name of the file</source>
        <translation>描述符中的“module”为“%1”，与文件名不符</translation>
    </message>
</context>
<context>
    <name>Kelta::PluginLoader</name>
    <message>
        <source>an error without a text</source>
        <translation>没有文本的错误</translation>
    </message>
    <message>
        <source>there is no %1 in %2</source>
        <translation>%2 中没有 %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>it needs the module &quot;%1&quot;, which is missing</source>
        <translation>它需要模块“%1”，但该模块不存在</translation>
    </message>
    <message>
        <source>it needs the module &quot;%1&quot;, which was not loaded</source>
        <translation>它需要模块“%1”，但该模块未加载</translation>
    </message>
    <message>
        <source>it needs version %1 of the module &quot;%2&quot;, which has version %3</source>
        <translation>它需要模块“%2”的版本 %1，而其版本为 %3</translation>
    </message>
    <message>
        <source>it needs itself: %1</source>
        <translation>它依赖自身：%1</translation>
    </message>
    <message>
        <source>its library %1 has no function &quot;%2&quot;</source>
        <translation>其库 %1 没有函数“%2”</translation>
    </message>
    <message>
        <source>its library cannot be loaded: %1</source>
        <translation>无法加载其库：%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of its library failed: %2</source>
        <translation>其库的“%1”失败：%2</translation>
    </message>
    <message>
        <source>The module &quot;%1&quot; was not loaded: %2</source>
        <translation>模块“%1”未加载：%2</translation>
    </message>
    <message>
        <source>its library %1 is not a regular file</source>
        <translation>其库 %1 不是普通文件</translation>
    </message>
    <message>
        <source>its library %1 is incomplete</source>
        <translation>其库 %1 不完整</translation>
    </message>
</context>
<context>
    <name>Kelta::RootClass</name>
    <message>
        <source>The class &quot;%1&quot; cannot be registered: %2</source>
        <translation>无法注册类“%1”：%2</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>它没有名称</translation>
    </message>
    <message>
        <source>another class has this name</source>
        <translation>另一个类已使用此名称</translation>
    </message>
    <message>
        <source>it would be derived from itself</source>
        <translation>它会派生自自身</translation>
    </message>
</context>
<context>
    <name>MatCmdDelDoc</name>
    <message>
        <source>Close project</source>
        <translation>关闭项目</translation>
    </message>
    <message>
        <source>Delete a material project</source>
        <translation>删除材料项目</translation>
    </message>
</context>
<context>
    <name>MatCmdDelete</name>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Deletes the selected material objects</source>
        <translation>删除所选材料对象</translation>
    </message>
</context>
<context>
    <name>MatCmdEdit</name>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Edit current material</source>
        <translation>编辑当前材料</translation>
    </message>
</context>
<context>
    <name>MatCmdMaterial</name>
    <message>
        <source>Add material</source>
        <translation>添加材料</translation>
    </message>
    <message>
        <source>Add a new material</source>
        <translation>添加新材料</translation>
    </message>
    <message>
        <source>Invalid project</source>
        <translation>无效项目</translation>
    </message>
    <message>
        <source>No material project.</source>
        <translation>没有材料项目。</translation>
    </message>
</context>
<context>
    <name>MatCmdNewDoc</name>
    <message>
        <source>&amp;New material project</source>
        <translation>新建材料项目(&amp;N)</translation>
    </message>
    <message>
        <source>Create a new material project</source>
        <translation>创建新的材料项目</translation>
    </message>
    <message>
        <source>Material project</source>
        <translation>材料项目</translation>
    </message>
    <message>
        <source>Material project is already presented in Project Explorer window.</source>
        <translation>项目浏览器中已有材料项目。</translation>
    </message>
</context>
<context>
    <name>MatGui::ComboDelegate</name>
    <message>
        <source>工人</source>
        <translation>工人</translation>
    </message>
    <message>
        <source>农民</source>
        <translation>农民</translation>
    </message>
    <message>
        <source>医生</source>
        <translation>医生</translation>
    </message>
    <message>
        <source>律师</source>
        <translation>律师</translation>
    </message>
    <message>
        <source>军人</source>
        <translation>军人</translation>
    </message>
</context>
<context>
    <name>MatGui::MaterialChange</name>
    <message>
        <source>Change &quot;%1&quot;</source>
        <translation>更改“%1”</translation>
    </message>
</context>
<context>
    <name>MatGui::MaterialView</name>
    <message>
        <source>Invalid selection</source>
        <translation>无效选择</translation>
    </message>
    <message>
        <source>Please selection one material.</source>
        <translation>请选择一种材料。</translation>
    </message>
    <message>
        <source>Empty property</source>
        <translation>属性为空</translation>
    </message>
    <message>
        <source>No property is defined.</source>
        <translation>未定义任何属性。</translation>
    </message>
    <message>
        <source>Invalid material</source>
        <translation>无效材料</translation>
    </message>
    <message>
        <source>Row %1: The value &quot;%2&quot; of &quot;%3&quot; is not a number!</source>
        <translation>第 %1 行：“%3”的值“%2”不是数字！</translation>
    </message>
    <message>
        <source>Row %1: The value &quot;%2&quot; of &quot;%3&quot; is out of the range of numbers!</source>
        <translation>第 %1 行：“%3”的值“%2”超出数值范围！</translation>
    </message>
    <message>
        <source>Material editor</source>
        <translation>材料编辑器</translation>
    </message>
    <message>
        <source>The changes of &quot;%1&quot; have not been applied.</source>
        <translation>“%1”的更改尚未应用。</translation>
    </message>
    <message>
        <source>Change value</source>
        <translation>更改值</translation>
    </message>
    <message>
        <source>Take library material</source>
        <translation>采用库材料</translation>
    </message>
    <message>
        <source>Add property</source>
        <translation>添加属性</translation>
    </message>
    <message>
        <source>Remove property</source>
        <translation>移除属性</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Restore changes</source>
        <translation>恢复更改</translation>
    </message>
    <message>
        <source>An error occurred: %1</source>
        <translation>出现错误：%1</translation>
    </message>
    <message>
        <source>Row %1: The value &quot;%2&quot; of &quot;%3&quot; would be read as &quot;%4&quot;: &quot;%5&quot; is not part of the number.</source>
        <translation>第 %1 行：“%3”的值“%2”将被读作“%4”：“%5”不是数字的一部分。</translation>
    </message>
    <message>
        <source>Type the value without it.</source>
        <translation>请输入不含该部分的值。</translation>
    </message>
    <message>
        <source>Type the value in %1, without a unit.</source>
        <translation>请输入以 %1 为单位的值，不带单位。</translation>
    </message>
    <message>
        <source>Row %1: The value &quot;%2&quot; of &quot;%3&quot; cannot be read. %4</source>
        <translation>第 %1 行：无法读取“%3”的值“%2”。%4</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>放弃(&amp;D)</translation>
    </message>
</context>
<context>
    <name>MatGui::SheetTableView</name>
    <message>
        <source>Insert rows</source>
        <translation>插入行</translation>
    </message>
    <message>
        <source>Remove rows</source>
        <translation>删除行</translation>
    </message>
    <message>
        <source>Insert columns</source>
        <translation>插入列</translation>
    </message>
    <message>
        <source>Remove columns</source>
        <translation>删除列</translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation>属性…</translation>
    </message>
    <message>
        <source>enum</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Row %1: Mass density must be positive!</source>
        <translation>第 %1 行：质量密度必须为正！</translation>
    </message>
    <message>
        <source>Row %1: Poisson&apos;s ratio must be between [0.001, 0.499]!</source>
        <translation>第 %1 行：泊松比必须在 [0.001, 0.499] 之间！</translation>
    </message>
    <message>
        <source>Row %1: Yield type must be Mises, Mohr-Coulomb, or Drucker-Prager!</source>
        <translation>第 %1 行：屈服类型必须为 Mises、Mohr-Coulomb 或 Drucker-Prager！</translation>
    </message>
    <message>
        <source>Row %1: Hardening type must be Bilinear, Multilinear, Swift,                     Ramberg-Osgood, Kinematic, or Combined!</source>
        <translation>第 %1 行：硬化类型必须为 Bilinear、Multilinear、Swift、Ramberg-Osgood、Kinematic 或 Combined！</translation>
    </message>
    <message>
        <source>Elasticity and hyper-elasticy cannot be used togeter!</source>
        <translation>弹性与超弹性不能同时使用！</translation>
    </message>
    <message>
        <source>Elasticity does not define Young&apos;s modulus!</source>
        <translation>弹性未定义杨氏模量！</translation>
    </message>
    <message>
        <source>Elasticity does not define Poisson&apos;s ratio!</source>
        <translation>弹性未定义泊松比！</translation>
    </message>
</context>
<context>
    <name>MatGui::ViewFeederMaterialObject</name>
    <message>
        <source>Show material</source>
        <translation>显示材料</translation>
    </message>
</context>
<context>
    <name>Mat_Delete</name>
    <message>
        <source>Object dependencies</source>
        <translation>对象依赖</translation>
    </message>
    <message>
        <source>This object is linked to other objects thus these objects might be broken.
Do you want to continue?</source>
        <translation>此对象与其他对象相关联，因此这些对象可能会损坏。
是否继续？</translation>
    </message>
</context>
<context>
    <name>MaterialAbout</name>
    <message>
        <source>Materials for finite-element simulation: 26 ready-made materials, 36 quantities, and the documents and cards that the solver reads.</source>
        <translation>用于有限元仿真的材料：26 种现成材料、36 个物理量，以及求解器读取的文档和卡片。</translation>
    </message>
</context>
<context>
    <name>MaterialCommand</name>
    <message>
        <source>&amp;Check materials</source>
        <translation>检查材料(&amp;C)</translation>
    </message>
    <message>
        <source>Check whether all materials of the project are ready</source>
        <translation>检查项目的所有材料是否就绪</translation>
    </message>
    <message>
        <source>&amp;Units...</source>
        <translation>单位(&amp;U)...</translation>
    </message>
    <message>
        <source>Choose the unit system in which the project is shown</source>
        <translation>选择显示项目所用的单位制</translation>
    </message>
    <message>
        <source>&amp;Export for solver...</source>
        <translation>为求解器导出(&amp;E)...</translation>
    </message>
    <message>
        <source>Write the materials in the input format of a solver</source>
        <translation>按求解器的输入格式写出材料</translation>
    </message>
    <message>
        <source>no material project is open</source>
        <translation>没有打开的材料项目</translation>
    </message>
    <message>
        <source>the project has no materials</source>
        <translation>项目没有材料</translation>
    </message>
</context>
<context>
    <name>MaterialFilter</name>
    <message>
        <source>Filter: label, or E &gt; 100 GPa</source>
        <translation>筛选：名称，或 E &gt; 100 GPa</translation>
    </message>
    <message>
        <source>Shows only materials whose labels have these words, or whose values satisfy conditions:
E &gt; 100 GPa and rho &lt; 3 g/cm3
steel and not has Creep
nu 0.25..0.35 or Yield type = Mises
Numbers without a unit are in SI.</source>
        <translation>只显示名称包含这些词或数值满足条件的材料：
E &gt; 100 GPa and rho &lt; 3 g/cm3
steel and not has Creep
nu 0.25..0.35 or Yield type = Mises
没有单位的数字采用 SI 单位。</translation>
    </message>
</context>
<context>
    <name>MaterialWelcome</name>
    <message>
        <source>No project is open</source>
        <translation>未打开任何项目</translation>
    </message>
    <message>
        <source>The project has no materials yet</source>
        <translation>项目中还没有材料</translation>
    </message>
    <message>
        <source>No material is open</source>
        <translation>未打开任何材料</translation>
    </message>
    <message>
        <source>Double-click a material in the project explorer, or select one and choose Edit.</source>
        <translation>请在项目浏览器中双击一种材料，或选中后选择“编辑”。</translation>
    </message>
    <message>
        <source>A material project holds the materials of a model. Make a new one, or open a saved one.</source>
        <translation>材料项目包含模型的材料。请新建一个，或打开已保存的项目。</translation>
    </message>
    <message>
        <source>Add a material. It has the values of structural steel; the editor offers 25 other materials and all quantities.</source>
        <translation>请添加一种材料。其初始值为结构钢；编辑器提供另外 25 种材料和所有物理量。</translation>
    </message>
</context>
<context>
    <name>MaterialWidget</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>材料库</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>General Materials</source>
        <translation>通用材料</translation>
    </message>
    <message>
        <source>Nonlinear Materials</source>
        <translation>非线性材料</translation>
    </message>
    <message>
        <source>Hyperelastic Materials</source>
        <translation>超弹性材料</translation>
    </message>
    <message>
        <source>Thermal &amp;&amp; Fluid Materials</source>
        <translation>热与流体材料</translation>
    </message>
    <message>
        <source>Thermal &amp; Fluid Materials</source>
        <translation>热与流体材料</translation>
    </message>
    <message>
        <source>Electromagnetc Materials</source>
        <translation>电磁材料</translation>
    </message>
    <message>
        <source>Acoustic Materials</source>
        <translation>声学材料</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Linear Elastic</source>
        <translation>线弹性</translation>
    </message>
    <message>
        <source>Hyper-elastic</source>
        <translation>超弹性</translation>
    </message>
    <message>
        <source>Plastic</source>
        <translation>塑性</translation>
    </message>
    <message>
        <source>Creep</source>
        <translation>蠕变</translation>
    </message>
    <message>
        <source>Visco-elastic</source>
        <translation>粘弹性</translation>
    </message>
    <message>
        <source>Electromagnetic</source>
        <translation>电磁</translation>
    </message>
    <message>
        <source>Material Properties</source>
        <translation>材料属性</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Shows the selected library material in the table</source>
        <translation>在表格中显示所选的库材料</translation>
    </message>
    <message>
        <source>Writes the table into the material and closes the window</source>
        <translation>将表格写入材料并关闭窗口</translation>
    </message>
    <message>
        <source>Writes the table into the material</source>
        <translation>将表格写入材料</translation>
    </message>
    <message>
        <source>Removes all properties from the table</source>
        <translation>从表格中移除所有属性</translation>
    </message>
    <message>
        <source>Closes the window and discards changes that are not applied</source>
        <translation>关闭窗口并放弃未应用的更改</translation>
    </message>
</context>
<context>
    <name>Obj</name>
    <message>
        <source>A listener failed</source>
        <translation>一个监听器失败</translation>
    </message>
</context>
<context>
    <name>Obj::Application</name>
    <message>
        <source>this class is not known</source>
        <translation>此类未知</translation>
    </message>
    <message>
        <source>this is not a class of projects</source>
        <translation>这不是项目类</translation>
    </message>
    <message>
        <source>No project of class &quot;%1&quot; was made: %2.</source>
        <translation>未创建类“%1”的项目：%2。</translation>
    </message>
    <message>
        <source>the class cannot create objects</source>
        <translation>该类无法创建对象</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; was restored as &quot;%2&quot;, because another project has its name.</source>
        <translation>项目“%1”已恢复为“%2”，因为其名称已被另一个项目使用。</translation>
    </message>
</context>
<context>
    <name>Obj::Project</name>
    <message>
        <source>this class is not known</source>
        <translation>此类未知</translation>
    </message>
    <message>
        <source>this is not a class of objects of a project</source>
        <translation>这不是项目对象的类</translation>
    </message>
    <message>
        <source>No object of class &quot;%1&quot; was added to the project &quot;%2&quot;: %3.</source>
        <translation>未向项目“%2”添加类“%1”的对象：%3。</translation>
    </message>
    <message>
        <source>No object of class &quot;%1&quot; was added to the project &quot;%2&quot;: projects of class &quot;%3&quot; do not take such objects.</source>
        <translation>未向项目“%2”添加类“%1”的对象：类“%3”的项目不接受此类对象。</translation>
    </message>
    <message>
        <source>The object &quot;%1&quot; cannot be added to the project &quot;%2&quot; under the id %3: ids are whole numbers from 1 to 4294967295 that no object of the project has or had, and the name must be one that no object has.</source>
        <translation>无法以编号 %3 将对象“%1”添加到项目“%2”：编号必须是 1 到 4294967295 之间、项目中任何对象都未曾使用的整数，且名称不得与其他对象相同。</translation>
    </message>
    <message>
        <source>No object can be added to the project &quot;%1&quot;: all ids are used up.</source>
        <translation>无法向项目“%1”添加对象：所有编号已用完。</translation>
    </message>
    <message>
        <source>An object failed after its project had been read</source>
        <translation>读取项目后，一个对象失败</translation>
    </message>
    <message>
        <source>The execution of an object failed</source>
        <translation>对象的执行失败</translation>
    </message>
    <message>
        <source>the class cannot create objects</source>
        <translation>该类无法创建对象</translation>
    </message>
    <message>
        <source>The object cannot be restored in the project &quot;%1&quot;, because it does not belong to this project.</source>
        <translation>无法在项目“%1”中恢复该对象，因为它不属于该项目。</translation>
    </message>
    <message>
        <source>An object failed when it was restored</source>
        <translation>对象在恢复时失败</translation>
    </message>
    <message>
        <source>The object &quot;%1&quot; was restored as &quot;%2&quot;, because another object has its name.</source>
        <translation>对象“%1”已恢复为“%2”，因为其名称已被另一个对象使用。</translation>
    </message>
</context>
<context>
    <name>Obj::ProjectObject</name>
    <message>
        <source>&quot;%1&quot; cannot be linked to &quot;%2&quot;: both must be in the same project.</source>
        <translation>无法将“%1”链接到“%2”：两者必须在同一项目中。</translation>
    </message>
    <message>
        <source>An object failed when its link was removed</source>
        <translation>对象在移除链接时失败</translation>
    </message>
    <message>
        <source>An object failed when its link was restored</source>
        <translation>对象在恢复链接时失败</translation>
    </message>
</context>
<context>
    <name>Obj::ProjectObjectGroup</name>
    <message>
        <source>&quot;%1&quot; cannot be a member of &quot;%2&quot;, because &quot;%2&quot; is inside it.</source>
        <translation>“%1”不能成为“%2”的成员，因为“%2”包含在其中。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a member of &quot;%2&quot;, because groups would be nested too deeply.</source>
        <translation>“%1”不能成为“%2”的成员，因为组会嵌套过深。</translation>
    </message>
</context>
<context>
    <name>Obj::PropertyRecords</name>
    <message>
        <source>the properties are not an object</source>
        <translation>属性不是对象</translation>
    </message>
    <message>
        <source>the links are not an array</source>
        <translation>链接不是数组</translation>
    </message>
</context>
<context>
    <name>Property</name>
    <message>
        <source>Info</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>定义</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>标识</translation>
    </message>
    <message>
        <source>ClassLabel</source>
        <translation>类</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>PhysicsType</source>
        <translation>物理类型</translation>
    </message>
    <message>
        <source>MaterialColor</source>
        <translation>材料颜色</translation>
    </message>
    <message>
        <source>Name shown in the project tree</source>
        <translation>在项目树中显示的名称</translation>
    </message>
    <message>
        <source>Identity of the tree object</source>
        <translation>树对象的标识</translation>
    </message>
    <message>
        <source>class name</source>
        <translation>类名</translation>
    </message>
    <message>
        <source>Physics type simulated in this project</source>
        <translation>此项目中模拟的物理类型</translation>
    </message>
    <message>
        <source>Color of material.</source>
        <translation>材料的颜色。</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>Material Project</source>
        <translation>材料项目</translation>
    </message>
    <message>
        <source>Structural</source>
        <translation>结构</translation>
    </message>
    <message>
        <source>measurements</source>
        <translation>测量数据</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Input check</source>
        <translation>输入检查</translation>
    </message>
    <message>
        <source>No property is defined in &apos;%1&apos;.</source>
        <translation>“%1”中未定义任何属性。</translation>
    </message>
    <message>
        <source>Material property defined in &apos;%1&apos; has value equal or less than zero.</source>
        <translation>“%1”中定义的材料属性的值小于或等于零。</translation>
    </message>
</context>
<context>
    <name>StandardCommand</name>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>生成副本(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Suppress</source>
        <translation>抑制(&amp;S)</translation>
    </message>
    <message>
        <source>U&amp;nsuppress</source>
        <translation>取消抑制(&amp;N)</translation>
    </message>
    <message>
        <source>Rena&amp;me</source>
        <translation>重命名(&amp;M)</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>关闭程序</translation>
    </message>
    <message>
        <source>&amp;Project explorer</source>
        <translation>项目浏览器(&amp;P)</translation>
    </message>
    <message>
        <source>Show or hide the project explorer</source>
        <translation>显示或隐藏项目浏览器</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>属性(&amp;R)</translation>
    </message>
    <message>
        <source>Show or hide the properties</source>
        <translation>显示或隐藏属性</translation>
    </message>
    <message>
        <source>&amp;Messages</source>
        <translation>消息(&amp;M)</translation>
    </message>
    <message>
        <source>Show or hide the messages</source>
        <translation>显示或隐藏消息</translation>
    </message>
    <message>
        <source>C&amp;lear messages</source>
        <translation>清空消息(&amp;L)</translation>
    </message>
    <message>
        <source>Empty the message log</source>
        <translation>清空消息日志</translation>
    </message>
    <message>
        <source>&amp;Tile</source>
        <translation>平铺(&amp;T)</translation>
    </message>
    <message>
        <source>Show all document windows side by side</source>
        <translation>并排显示所有文档窗口</translation>
    </message>
    <message>
        <source>&amp;Cascade</source>
        <translation>层叠(&amp;C)</translation>
    </message>
    <message>
        <source>Show the document windows one behind the other</source>
        <translation>层叠显示文档窗口</translation>
    </message>
    <message>
        <source>Ta&amp;bs</source>
        <translation>选项卡(&amp;B)</translation>
    </message>
    <message>
        <source>Show the document windows as tabs</source>
        <translation>以选项卡显示文档窗口</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>关闭(&amp;O)</translation>
    </message>
    <message>
        <source>Close the document window in front</source>
        <translation>关闭最前面的文档窗口</translation>
    </message>
    <message>
        <source>Close &amp;all</source>
        <translation>全部关闭(&amp;A)</translation>
    </message>
    <message>
        <source>Close all document windows</source>
        <translation>关闭所有文档窗口</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>Copy the selected objects</source>
        <translation>复制所选对象</translation>
    </message>
    <message>
        <source>Add the copied objects to the project</source>
        <translation>将复制的对象添加到项目</translation>
    </message>
    <message>
        <source>Add a copy of each selected object</source>
        <translation>添加每个所选对象的副本</translation>
    </message>
    <message>
        <source>Select all objects of the project</source>
        <translation>选择项目的所有对象</translation>
    </message>
    <message>
        <source>&amp;Hand over to the solver</source>
        <translation>移交给求解器(&amp;H)</translation>
    </message>
    <message>
        <source>Hand the data of the project over to the solver</source>
        <translation>将项目数据移交给求解器</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 以及另外 %2 个</translation>
    </message>
    <message>
        <source>Delete objects</source>
        <translation>删除对象</translation>
    </message>
    <message>
        <source>Dele&amp;te</source>
        <translation>删除(&amp;T)</translation>
    </message>
    <message>
        <source>Delete the selected objects</source>
        <translation>删除所选对象</translation>
    </message>
    <message>
        <source>&amp;Close project</source>
        <translation>关闭项目(&amp;C)</translation>
    </message>
    <message>
        <source>These objects refer to the objects to be deleted, and lose the references: %1.
Delete anyway?</source>
        <translation>以下对象引用了要删除的对象，并将失去这些引用：%1。
仍要删除吗？</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>撤销上一次更改</translation>
    </message>
    <message>
        <source>Redo the change that was undone last</source>
        <translation>重做上一次撤销的更改</translation>
    </message>
    <message>
        <source>Close the selected project, or the project of the selected object</source>
        <translation>关闭所选项目或所选对象所在的项目</translation>
    </message>
    <message>
        <source>Suppress the selected objects: they are not used, but not deleted</source>
        <translation>抑制所选对象：不使用但不删除</translation>
    </message>
    <message>
        <source>End the suppression of the selected objects</source>
        <translation>取消抑制所选对象</translation>
    </message>
    <message>
        <source>Show information about the program</source>
        <translation>显示程序信息</translation>
    </message>
    <message>
        <source>Give the selected object or project another name</source>
        <translation>为选定的对象或项目指定另一个名称</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>已撤消：%1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>已重做：%1</translation>
    </message>
    <message>
        <source>C&amp;olor...</source>
        <translation>颜色(&amp;O)...</translation>
    </message>
    <message>
        <source>Choose the color of the selected objects</source>
        <translation>选择所选对象的颜色</translation>
    </message>
    <message>
        <source>&amp;Toolbars</source>
        <translation>工具栏(&amp;T)</translation>
    </message>
    <message>
        <source>Show or hide toolbars</source>
        <translation>显示或隐藏工具栏</translation>
    </message>
    <message>
        <source>&amp;Next pane</source>
        <translation>下一窗格(&amp;N)</translation>
    </message>
    <message>
        <source>Move the keyboard focus to the next part of the window</source>
        <translation>将键盘焦点移到窗口的下一部分</translation>
    </message>
    <message>
        <source>Pre&amp;vious pane</source>
        <translation>上一窗格(&amp;V)</translation>
    </message>
    <message>
        <source>Move the keyboard focus to the previous part of the window</source>
        <translation>将键盘焦点移到窗口的上一部分</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>语言(&amp;G)</translation>
    </message>
    <message>
        <source>Choose the language of the program</source>
        <translation>选择程序的语言</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was handed over to the solver.</source>
        <translation>“%1”已移交给求解器。</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>系统(&amp;S)</translation>
    </message>
    <message>
        <source>Show only the objects that match an expression</source>
        <translation>只显示符合表达式的对象</translation>
    </message>
    <message>
        <source>Pr&amp;eferences...</source>
        <translation>首选项(&amp;E)...</translation>
    </message>
    <message>
        <source>Choose the settings of the program</source>
        <translation>选择程序的设置</translation>
    </message>
    <message>
        <source>F&amp;ind...</source>
        <translation>查找(&amp;I)...</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>项目(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Material</source>
        <translation>材料(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>窗口(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>&amp;Workbench</source>
        <translation>工作台(&amp;W)</translation>
    </message>
    <message>
        <source>%1 (below)</source>
        <translation>%1（下方）</translation>
    </message>
</context>
<context>
    <name>desktop::Batch</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>没有命令“%1”</translation>
    </message>
    <message>
        <source>%1 takes at most one argument, the file that it asks for</source>
        <translation>%1 最多接受一个参数，即所询问的文件</translation>
    </message>
    <message>
        <source>%1 cannot be done now</source>
        <translation>现在无法执行 %1</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 失败</translation>
    </message>
    <message>
        <source>there is no such project</source>
        <translation>没有这样的项目</translation>
    </message>
    <message>
        <source>one file name is needed</source>
        <translation>需要一个文件名</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>无法写入 %1</translation>
    </message>
    <message>
        <source>the library has no material &quot;%1&quot;</source>
        <translation>材料库中没有“%1”</translation>
    </message>
    <message>
        <source>the catalogue has no quantity &quot;%1&quot;</source>
        <translation>目录中没有物理量“%1”</translation>
    </message>
    <message>
        <source>one selected material is needed</source>
        <translation>需要一种所选材料</translation>
    </message>
    <message>
        <source>there is no material project</source>
        <translation>没有材料项目</translation>
    </message>
    <message>
        <source>the value &quot;%1&quot; would be read as &quot;%2&quot;; &quot;%3&quot; would be ignored; give the value without it</source>
        <translation>值“%1”将被读作“%2”；“%3”将被忽略；请给出不含该部分的值</translation>
    </message>
    <message>
        <source>the value &quot;%1&quot; is not a finite number</source>
        <translation>值“%1”不是有限数</translation>
    </message>
    <message>
        <source>the material project &quot;%1&quot; is open; close it first with select-project and Mat_DelDoc</source>
        <translation>材料项目“%1”已打开；请先用 select-project 和 Mat_DelDoc 将其关闭</translation>
    </message>
    <message>
        <source>Mat_Export needs one argument, the name of the file to write</source>
        <translation>Mat_Export 需要一个参数，即要写入的文件名</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no property &quot;%2&quot;</source>
        <translation>“%1”没有属性“%2”</translation>
    </message>
    <message>
        <source>no project is open</source>
        <translation>没有打开的项目</translation>
    </message>
    <message>
        <source>give the name of a library material, and select exactly one material</source>
        <translation>请给出一个库材料的名称，并只选择一种材料</translation>
    </message>
    <message>
        <source>give a quantity and its value, and select exactly one material</source>
        <translation>请给出一个物理量及其值，并只选择一种材料</translation>
    </message>
    <message>
        <source>arguments are not allowed here</source>
        <translation>此处不允许使用参数</translation>
    </message>
    <message>
        <source>the current project has no object with the label &quot;%1&quot;</source>
        <translation>当前项目中没有标签为“%1”的对象</translation>
    </message>
    <message>
        <source>give the name of a property and a value, and select exactly one object</source>
        <translation>请给出属性名称和值，并只选择一个对象</translation>
    </message>
    <message>
        <source>give a label, and select exactly one object</source>
        <translation>请给出一个标签，并只选择一个对象</translation>
    </message>
    <message>
        <source>select exactly one object, and give no argument</source>
        <translation>请只选择一个对象，不带参数</translation>
    </message>
    <message>
        <source>Mat_Import reads no files; import an exchange document with Std_ImportDocument</source>
        <translation>Mat_Import 不读取文件；请用 Std_ImportDocument 导入交换文档</translation>
    </message>
    <message>
        <source>nothing is selected that %1 acts on</source>
        <translation>没有选中 %1 可作用的对象</translation>
    </message>
    <message>
        <source>one selected material project is needed</source>
        <translation>需要选中一个材料项目</translation>
    </message>
    <message>
        <source>the dialog &quot;%1&quot; needs a user</source>
        <translation>对话框“%1”需要用户操作</translation>
    </message>
    <message>
        <source>the program was not closed</source>
        <translation>程序未关闭</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>这不是普通文件</translation>
    </message>
    <message>
        <source>the list is longer than 64 MiB</source>
        <translation>该列表超过 64 MiB</translation>
    </message>
    <message>
        <source>the list is not UTF-8</source>
        <translation>该列表不是 UTF-8 编码</translation>
    </message>
    <message>
        <source>the program has been closed by Std_Quit; no line may follow</source>
        <translation>程序已由 Std_Quit 关闭；其后不得再有命令行</translation>
    </message>
    <message>
        <source>the line contains a zero character</source>
        <translation>该行包含空字符</translation>
    </message>
    <message>
        <source>%1 needs one argument, the name of a file</source>
        <translation>%1 需要一个参数，即文件名</translation>
    </message>
    <message>
        <source>%1 did not use the argument &quot;%2&quot;</source>
        <translation>%1 没有使用参数“%2”</translation>
    </message>
    <message>
        <source>standard output cannot be written: %1</source>
        <translation>无法写入标准输出：%1</translation>
    </message>
    <message>
        <source>give one unit system at most, and make a material project the current one</source>
        <translation>请最多给出一个单位制，并将材料项目设为当前项目</translation>
    </message>
    <message>
        <source>%1 is not a picture and is not replaced; give another name</source>
        <translation>%1 不是图片，因此不会被替换；请指定其他名称</translation>
    </message>
    <message>
        <source>the catalogue has no quantity &quot;%1&quot;; did you mean &quot;%2&quot;?</source>
        <translation>目录中没有量“%1”；您是想输入“%2”吗？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of &quot;%2&quot;: give red, green, blue and opacity as four numbers from 0 to 1, &quot;0.5, 0, 0, 1&quot;</source>
        <translation>“%1”不是“%2”的值：请用 0 到 1 的四个数给出红、绿、蓝和不透明度，例如“0.5, 0, 0, 1”</translation>
    </message>
    <message>
        <source>give a solver, the name of the file to write, and the unit system of the deck if it is not that of the project</source>
        <translation>请给出求解器、要写入的文件名，以及输入文件的单位制（如果不是项目的单位制）</translation>
    </message>
    <message>
        <source>there is no solver &quot;%1&quot;; the solvers are: %2</source>
        <translation>没有求解器“%1”；可用的求解器：%2</translation>
    </message>
    <message>
        <source>give the name of a document or deck, and the unit system of its numbers if it is not SI or declared</source>
        <translation>请给出文档或输入文件的名称，以及数字的单位制（如果不是 SI 或未声明）</translation>
    </message>
</context>
<context>
    <name>desktop::CellReading</name>
    <message>
        <source>Type numbers, separated by commas.</source>
        <translation>请输入数字，用逗号分隔。</translation>
    </message>
    <message>
        <source>Type numbers in %1, or with a unit, separated by commas.</source>
        <translation>请输入以 %1 为单位或带单位的数字，用逗号分隔。</translation>
    </message>
    <message>
        <source>Type a number.</source>
        <translation>请输入一个数字。</translation>
    </message>
    <message>
        <source>Type a number in %1, or with a unit.</source>
        <translation>请输入以 %1 为单位或带单位的数字。</translation>
    </message>
    <message>
        <source>%1 numbers: %2, ..., %3</source>
        <translation>%1 个数字：%2, ..., %3</translation>
    </message>
    <message>
        <source>%1 (pure number)</source>
        <translation>%1（无量纲）</translation>
    </message>
</context>
<context>
    <name>desktop::DeckDialog</name>
    <message>
        <source>E&amp;xport...</source>
        <translation>导出(&amp;X)...</translation>
    </message>
    <message>
        <source>Export for solver</source>
        <translation>为求解器导出</translation>
    </message>
    <message>
        <source>&amp;All materials of the project (%1)</source>
        <translation>项目的全部材料(&amp;A)（%1）</translation>
    </message>
    <message>
        <source>Only the &amp;selected ones (%1)</source>
        <translation>仅所选材料(&amp;S)（%1）</translation>
    </message>
    <message>
        <source>Beginning of the deck</source>
        <translation>输入文件的开头</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>格式(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Units of the deck:</source>
        <translation>输入文件的单位(&amp;U)：</translation>
    </message>
    <message>
        <source>&amp;Report:</source>
        <translation>报告(&amp;R)：</translation>
    </message>
    <message>
        <source>The deck cannot be shown</source>
        <translation>无法显示输入文件</translation>
    </message>
    <message>
        <source>The deck is being made...</source>
        <translation>正在生成输入文件...</translation>
    </message>
    <message>
        <source>The project has no materials.</source>
        <translation>项目中没有材料。</translation>
    </message>
    <message>
        <source>The base units cannot be read.</source>
        <translation>无法读取基本单位。</translation>
    </message>
    <message>
        <source>&amp;Preview:</source>
        <translation>预览(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Preview (the first %1 of %2 lines):</source>
        <translation>预览(&amp;P)（共 %2 行，前 %1 行）：</translation>
    </message>
    <message>
        <source>The deck cannot be made: %1</source>
        <translation>无法生成输入文件：%1</translation>
    </message>
    <message>
        <source>The materials cannot be exported</source>
        <translation>无法导出材料</translation>
    </message>
    <message>
        <source>&amp;Preview (long lines are cut after %1 characters):</source>
        <translation>预览(&amp;P)（过长的行在 %1 个字符后截断）：</translation>
    </message>
    <message>
        <source>&amp;Preview (the first %1 of %2 lines, long lines cut after %3 characters):</source>
        <translation>预览(&amp;P)（前 %1 行，共 %2 行；过长的行在 %3 个字符后截断）：</translation>
    </message>
    <message>
        <source>F&amp;orm:</source>
        <translation>形式(&amp;O)：</translation>
    </message>
</context>
<context>
    <name>desktop::DeckExport</name>
    <message>
        <source>Export for solver</source>
        <translation>为求解器导出</translation>
    </message>
    <message>
        <source>The deck contains only applied changes.</source>
        <translation>输入文件只包含已应用的更改。</translation>
    </message>
    <message>
        <source>&amp;Export without them</source>
        <translation>不含这些内容导出(&amp;E)</translation>
    </message>
    <message>
        <source>Materials written to &quot;%1&quot; for %2 in %3: %4.</source>
        <translation>已按 %3 为 %2 写入“%1”的材料：%4。</translation>
    </message>
    <message>
        <source>Suppressed materials among them: %1.</source>
        <translation>其中被抑制的材料：%1。</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Replace it by a deck?</source>
        <translation>用求解器输入文件替换它吗？</translation>
    </message>
    <message>
        <source>The materials were not exported.</source>
        <translation>材料未导出。</translation>
    </message>
    <message>
        <source>A deck carries no data that a project keeps beside its materials. Not written: %1.</source>
        <translation>输入文件不包含项目在材料之外保存的数据。未写出：%1。</translation>
    </message>
</context>
<context>
    <name>desktop::DeckImport</name>
    <message>
        <source>This deck of %1 has no materials.</source>
        <translation>此 %1 输入文件中没有材料。</translation>
    </message>
    <message>
        <source>The numbers look like %1, not %2.</source>
        <translation>这些数字看起来是 %1，而不是 %2。</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>无法打开文件。</translation>
    </message>
    <message>
        <source>Further losses are not listed: %1.</source>
        <translation>其余丢失未列出：%1。</translation>
    </message>
</context>
<context>
    <name>desktop::DeckPreview</name>
    <message>
        <source>In %1, they would be unusual. %2</source>
        <translation>若采用 %1，它们就不寻常。%2</translation>
    </message>
    <message>
        <source>The numbers look like %1. In %2, they would be unusual. %3</source>
        <translation>这些数值看起来是 %1。若采用 %2，它们就不寻常。%3</translation>
    </message>
    <message>
        <source>Findings: %1, doubts: %2</source>
        <translation>检查结果：%1，疑问：%2</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>检查结果：%1</translation>
    </message>
    <message>
        <source>Doubts: %1</source>
        <translation>疑问：%1</translation>
    </message>
</context>
<context>
    <name>desktop::DeckReportModel</name>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Quantities</source>
        <translation>物理量</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>材料</translation>
    </message>
</context>
<context>
    <name>desktop::DeckReportView</name>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
</context>
<context>
    <name>desktop::EditorWatch</name>
    <message>
        <source>The values of an editor cannot be checked</source>
        <translation>无法检查编辑器中的值</translation>
    </message>
    <message>
        <source>The changes in an editor cannot be recorded</source>
        <translation>无法记录编辑器中的更改</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was applied: no property has changed.</source>
        <translation>“%1”已应用：没有属性发生变化。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was applied. Properties added: %2, changed: %3, removed: %4.</source>
        <translation>“%1”已应用。添加的属性：%2，更改：%3，移除：%4。</translation>
    </message>
    <message>
        <source>Row %1: The value &quot;%2&quot; of &quot;%3&quot; cannot be read. %4</source>
        <translation>第 %1 行：无法读取“%3”的值“%2”。%4</translation>
    </message>
    <message>
        <source>Convert values</source>
        <translation>换算数值</translation>
    </message>
</context>
<context>
    <name>desktop::GuideView</name>
    <message>
        <source>Guide</source>
        <translation>指南</translation>
    </message>
    <message>
        <source>The file %1 of the guide cannot be read. Install the program again.</source>
        <translation>无法读取指南文件 %1。请重新安装程序。</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>everywhere</source>
        <translation>任何位置</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab、Shift+Tab</translation>
    </message>
    <message>
        <source>moves between the fields of a part</source>
        <translation>在一个部分的字段之间移动</translation>
    </message>
    <message>
        <source>explorer</source>
        <translation>项目浏览器</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>回车键</translation>
    </message>
    <message>
        <source>opens the material</source>
        <translation>打开材料</translation>
    </message>
    <message>
        <source>page headers of an editor</source>
        <translation>编辑器的页标题</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格键</translation>
    </message>
    <message>
        <source>opens the page</source>
        <translation>打开该页</translation>
    </message>
    <message>
        <source>lists of an editor</source>
        <translation>编辑器的列表</translation>
    </message>
    <message>
        <source>selects a library material; checks or unchecks a quantity</source>
        <translation>选择库中的材料；勾选或取消勾选一个量</translation>
    </message>
    <message>
        <source>table of an editor</source>
        <translation>编辑器的表格</translation>
    </message>
    <message>
        <source>F2 or Return, then Return or Escape</source>
        <translation>F2 或回车键，然后回车键或 Esc</translation>
    </message>
    <message>
        <source>edits the value of the row; keeps or discards the text</source>
        <translation>编辑该行的值；保留或放弃文本</translation>
    </message>
    <message>
        <source>editor</source>
        <translation>编辑器</translation>
    </message>
    <message>
        <source>Ctrl+Z, Ctrl+Y</source>
        <translation>Ctrl+Z、Ctrl+Y</translation>
    </message>
    <message>
        <source>undoes and redoes changes that have not been applied</source>
        <translation>撤销和重做尚未应用的更改</translation>
    </message>
    <message>
        <source>guide</source>
        <translation>指南</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>closes the guide</source>
        <translation>关闭指南</translation>
    </message>
    <message>
        <source>Keys in the parts of the window</source>
        <translation>窗口各部分中的按键</translation>
    </message>
</context>
<context>
    <name>desktop::ImportDeckDialog</name>
    <message>
        <source>&amp;Import</source>
        <translation>导入(&amp;I)</translation>
    </message>
    <message>
        <source>Import deck</source>
        <translation>导入输入文件</translation>
    </message>
    <message>
        <source>The deck cannot be shown</source>
        <translation>无法显示输入文件</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a deck of %2. Materials: %3</source>
        <translation>“%1”是 %2 的输入文件。材料：%3</translation>
    </message>
    <message>
        <source>&amp;Report:</source>
        <translation>报告(&amp;R)：</translation>
    </message>
    <message>
        <source>Each number in the file has its unit.</source>
        <translation>文件中的每个数字都带有单位。</translation>
    </message>
    <message>
        <source>&amp;Unit system of the numbers, which the file declares:</source>
        <translation>数字的单位制(&amp;U)（由文件声明）：</translation>
    </message>
    <message>
        <source>&amp;Unit system of the numbers, which the file does not say:</source>
        <translation>数字的单位制(&amp;U)（文件中未说明）：</translation>
    </message>
    <message>
        <source>&amp;Unit system of the numbers, which the file does not say. They look like %1:</source>
        <translation>数字的单位制(&amp;U)（文件中未说明，看起来是 %1）：</translation>
    </message>
    <message>
        <source>Choose the unit system; then the report is shown.</source>
        <translation>请选择单位制，然后显示报告。</translation>
    </message>
    <message>
        <source>The deck is being read...</source>
        <translation>正在读取输入文件...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a deck of %2.</source>
        <translation>“%1”是 %2 的输入文件。</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>&amp;Materials:</source>
        <translation>材料(&amp;M)：</translation>
    </message>
    <message>
        <source>The numbers are usual in several unit systems, so that none is proposed.</source>
        <translation>这些数值在多种单位制中都属正常，因此不作建议。</translation>
    </message>
    <message>
        <source>Materials with findings: %1.</source>
        <translation>有检查结果的材料：%1。</translation>
    </message>
    <message>
        <source>The file has changed and was read again. Check the report before you import it.</source>
        <translation>文件已更改并重新读取。导入之前请检查报告。</translation>
    </message>
    <message>
        <source>Materials with doubts: %1.</source>
        <translation>有疑问的材料：%1。</translation>
    </message>
</context>
<context>
    <name>desktop::ImportUnitsDialog</name>
    <message>
        <source>Import exchange document</source>
        <translation>导入交换文档</translation>
    </message>
    <message>
        <source>The numbers in &quot;%1&quot; look like %2.</source>
        <translation>“%1”中的数字看起来是 %2。</translation>
    </message>
    <message>
        <source>&amp;Convert from %1</source>
        <translation>从 %1 转换(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Import as they are</source>
        <translation>按原样导入(&amp;I)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: these numbers were not converted, because their units are not known: %2</source>
        <translation>“%1”：以下数字未转换，因为其单位未知：%2</translation>
    </message>
    <message>
        <source>The numbers were converted from %1 to the units of the catalogue. Materials: %2</source>
        <translation>数字已从 %1 转换为目录的单位。材料数：%2</translation>
    </message>
    <message>
        <source>&amp;Unit system of the numbers in &quot;%1&quot;:</source>
        <translation>“%1”中数字的单位制(&amp;U)：</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>导入(&amp;I)</translation>
    </message>
    <message>
        <source>In %1, they would be unusual. %2</source>
        <translation>按 %1 它们不寻常。%2</translation>
    </message>
    <message>
        <source>The numbers look like %1, not %2. Import the document again in this unit system; in a list of commands, the second argument of Std_ImportDocument gives it.</source>
        <translation>这些数字看起来是 %1，而不是 %2。请以该单位制重新导入文档；在命令列表中，由 Std_ImportDocument 的第二个参数给出。</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: the numbers look like %2, not %3.</source>
        <translation>“%1”：这些数字看起来是 %2，而不是 %3。</translation>
    </message>
</context>
<context>
    <name>desktop::KeptEdits</name>
    <message>
        <source>Changes that were not applied cannot be shown again</source>
        <translation>无法重新显示未应用的更改</translation>
    </message>
</context>
<context>
    <name>desktop::MaterialCheck</name>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>“%1”：%2</translation>
    </message>
    <message>
        <source>All materials of &quot;%1&quot; are ready (%2 checked).</source>
        <translation>“%1”的所有材料均已就绪（已检查 %2 个）。</translation>
    </message>
    <message>
        <source>Not ready in &quot;%1&quot;: %2 of %3 materials. Findings: %4.</source>
        <translation>“%1”中未就绪：%3 种材料中的 %2 种。发现的问题：%4。</translation>
    </message>
    <message>
        <source>Changes in open editors that are not applied were not checked: %1.</source>
        <translation>未检查已打开编辑器中未应用的更改：%1。</translation>
    </message>
    <message>
        <source>Further findings are not listed: %1.</source>
        <translation>未列出的其他问题：%1。</translation>
    </message>
</context>
<context>
    <name>desktop::MaterialCounts</name>
    <message>
        <source>The materials cannot be counted</source>
        <translation>无法统计材料数量</translation>
    </message>
    <message>
        <source>Materials: %1, selected: %2, not ready: %3</source>
        <translation>材料：%1，选定：%2，未就绪：%3</translation>
    </message>
</context>
<context>
    <name>desktop::MaterialExport</name>
    <message>
        <source>&quot;%1&quot;: An exchange document carries no words and lists. Not written: %2.</source>
        <translation>“%1”：交换文档不包含文字和列表。未写入：%2。</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; of &quot;%2&quot; is %3. An exchange document contains only finite numbers. Change the value, then export again.</source>
        <translation>“%2”的“%1”的值为 %3。交换文档只包含有限数。请更改该值后重新导出。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular file. Choose another name.</source>
        <translation>“%1”不是普通文件。请选择其他名称。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>无法写入“%1”：%2。</translation>
    </message>
    <message>
        <source>Materials written to &quot;%1&quot;: %2.</source>
        <translation>写入“%1”的材料数：%2。</translation>
    </message>
    <message>
        <source>Suppressed materials among them: %1.</source>
        <translation>其中被抑制的材料：%1。</translation>
    </message>
    <message>
        <source>The export to &quot;%1&quot; is not complete: %2 Export again to another place.</source>
        <translation>导出到“%1”不完整：%2 请重新导出到其他位置。</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; of &quot;%2&quot; has the number %3. Readers of exchange documents refuse numbers below 0. Make the material again without this property, then export again.</source>
        <translation>“%2”的属性“%1”的编号为 %3。交换文档的读取程序拒绝小于 0 的编号。请重新创建不含该属性的材料，然后重新导出。</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: An exchange document carries no data that a project keeps beside a material. Not written: %2.</source>
        <translation>“%1”：交换文档不包含项目在材料旁保存的数据。未写入：%2。</translation>
    </message>
</context>
<context>
    <name>desktop::MaterialFiles</name>
    <message>
        <source>Documents and decks</source>
        <translation>文档和输入文件</translation>
    </message>
    <message>
        <source>Exchange documents</source>
        <translation>交换文档</translation>
    </message>
    <message>
        <source>Decks of solvers</source>
        <translation>求解器输入文件</translation>
    </message>
</context>
<context>
    <name>desktop::MaterialGuards</name>
    <message>
        <source>New material project</source>
        <translation>新建材料项目</translation>
    </message>
    <message>
        <source>Only one material project can be used at a time. Close &quot;%1&quot; and make a new one?</source>
        <translation>一次只能使用一个材料项目。要关闭“%1”并新建一个吗？</translation>
    </message>
    <message>
        <source>No material project is open. Open one, then export it.</source>
        <translation>未打开任何材料项目。请先打开一个再导出。</translation>
    </message>
    <message>
        <source>Export materials</source>
        <translation>导出材料</translation>
    </message>
    <message>
        <source>&amp;Export without them</source>
        <translation>不含这些内容导出(&amp;E)</translation>
    </message>
    <message>
        <source>Edit materials</source>
        <translation>编辑材料</translation>
    </message>
    <message>
        <source>Materials selected: %1. At most %2 can be opened at a time. Select fewer.</source>
        <translation>已选择材料：%1。一次最多可打开 %2 个。请减少选择。</translation>
    </message>
    <message>
        <source>Open %1 editors?</source>
        <translation>要打开 %1 个编辑器吗？</translation>
    </message>
    <message>
        <source>Material projects that are open: %1. Only one project can be exported. Close the other projects first.</source>
        <translation>已打开的材料项目：%1。只能导出一个项目。请先关闭其他项目。</translation>
    </message>
    <message>
        <source>The export contains only applied changes.</source>
        <translation>导出内容只包含已应用的更改。</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>Only one material project can be used at a time. Close &quot;%1&quot; and open &quot;%2&quot;?</source>
        <translation>一次只能使用一个材料项目。关闭“%1”并打开“%2”？</translation>
    </message>
    <message>
        <source>&amp;Close and open</source>
        <translation>关闭并打开(&amp;C)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the file of the project &quot;%2&quot;, which is open.</source>
        <translation>“%1”是已打开的项目“%2”的文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in use by %2.</source>
        <translation>“%1”正被 %2 使用。</translation>
    </message>
    <message>
        <source>Replace it by an exchange document?</source>
        <translation>用交换文档替换它？</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a project file.</source>
        <translation>“%1”是项目文件。</translation>
    </message>
</context>
<context>
    <name>desktop::ProjectFiles</name>
    <message>
        <source>The project has no numbers left for so many materials.</source>
        <translation>项目没有足够的编号容纳这么多材料。</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>导入“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in use by %2.</source>
        <translation>“%1”正被 %2 使用。</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>无法打开“%1”。</translation>
    </message>
    <message>
        <source>File in use</source>
        <translation>文件正在使用</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>保存项目</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the file of the project &quot;%2&quot;, which is open.</source>
        <translation>“%1”是已打开的项目“%2”的文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been saved.</source>
        <translation>“%1”已保存。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been changed by another program, on %2.</source>
        <translation>“%1”已于 %2 被另一个程序更改。</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save without them</source>
        <translation>不含更改保存(&amp;S)</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>未保存的更改</translation>
    </message>
    <message>
        <source>The changes of the project &quot;%1&quot; have not been saved.</source>
        <translation>项目“%1”的更改尚未保存。</translation>
    </message>
    <message>
        <source>Changes in open editors have not been applied.</source>
        <translation>打开的编辑器中的更改尚未应用。</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>放弃(&amp;D)</translation>
    </message>
    <message>
        <source>No copy for recovery could be kept: %1</source>
        <translation>无法保留用于恢复的副本：%1</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>The program ended before projects were saved.</source>
        <translation>程序在保存项目之前结束。</translation>
    </message>
    <message>
        <source>There are copies from %1.</source>
        <translation>有来自 %1 的副本。</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>恢复(&amp;R)</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>以后</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be recovered.</source>
        <translation>无法恢复“%1”。</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Objects imported: %1</source>
        <translation>已导入对象：%1</translation>
    </message>
    <message>
        <source>The content of &quot;%1&quot; is kept, but no module can read it.</source>
        <translation>“%1”的内容已保留，但没有模块可以读取。</translation>
    </message>
    <message>
        <source>The content of the object &quot;%1&quot; of the class &quot;%2&quot; cannot be read: %3</source>
        <translation>无法读取类“%2”的对象“%1”的内容：%3</translation>
    </message>
    <message numerus="yes">
        <source>%n link(s) of &quot;%1&quot; cannot be made.</source>
        <translation>
            <numerusform>无法建立“%1”的 %n 个链接。</numerusform>
        </translation>
    </message>
    <message>
        <source>These properties of &quot;%1&quot; are kept, but cannot be set: %2.</source>
        <translation>“%1”的以下属性已保留，但无法设置：%2。</translation>
    </message>
    <message>
        <source>Project (*.vxmat)</source>
        <translation>项目 (*.vxmat)</translation>
    </message>
    <message>
        <source>The message log gives the reason.</source>
        <translation>消息日志中说明了原因。</translation>
    </message>
    <message>
        <source>The object &quot;%1&quot; of the class &quot;%2&quot; cannot be added to the project. The message log gives the reason.</source>
        <translation>类“%2”的对象“%1”无法添加到项目中。消息日志中说明了原因。</translation>
    </message>
    <message>
        <source>The module of these classes is missing: %1. Their objects are kept unchanged.</source>
        <translation>缺少以下类的模块：%1。其对象保持不变。</translation>
    </message>
    <message>
        <source>If both programs save the file, the later save replaces the earlier one.</source>
        <translation>如果两个程序都保存该文件，后保存的内容会替换先保存的内容。</translation>
    </message>
    <message>
        <source>&amp;Use anyway</source>
        <translation>仍然使用(&amp;U)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was last changed on %2, before the project was recovered.</source>
        <translation>“%1”上次更改于 %2，早于项目恢复。</translation>
    </message>
    <message>
        <source>Replacing the file deletes its present content.</source>
        <translation>替换后，文件的现有内容将丢失。</translation>
    </message>
    <message>
        <source>The file contains only applied changes.</source>
        <translation>文件只包含已应用的更改。</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is shown as &quot;%2&quot;.</source>
        <translation>项目“%1”显示为“%2”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an exchange document, not a project file. No module that imports such documents is loaded.</source>
        <translation>“%1”是交换文档，不是项目文件。没有加载可导入此类文档的模块。</translation>
    </message>
    <message>
        <source>If this program no longer runs, take over its lock. If it runs:</source>
        <translation>如果该程序已不再运行，请接管其锁。如果它仍在运行：</translation>
    </message>
    <message>
        <source>&amp;Take over</source>
        <translation>接管(&amp;T)</translation>
    </message>
    <message>
        <source>&quot;Save&quot; applies them first.</source>
        <translation>“保存”会先应用这些更改。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an exchange document, not a project file.</source>
        <translation>“%1”是交换文档，不是项目文件。</translation>
    </message>
    <message>
        <source>Import its content into a new project?</source>
        <translation>将其内容导入新项目？</translation>
    </message>
    <message>
        <source>Import its content into the project &quot;%1&quot;?</source>
        <translation>将其内容导入项目“%1”？</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>导入(&amp;I)</translation>
    </message>
    <message>
        <source>HOME is not the name of a folder.</source>
        <translation>HOME 不是文件夹的名称。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is now &quot;%2&quot;</source>
        <translation>“%1”现为“%2”</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>另有 %1 个</translation>
    </message>
    <message>
        <source>Objects with a label that was in use have got another one: %1.</source>
        <translation>标签已被占用的对象已改用其他标签：%1。</translation>
    </message>
    <message>
        <source>Objects imported: %1, with another label: %2</source>
        <translation>已导入对象：%1，其中改用其他标签：%2</translation>
    </message>
</context>
<context>
    <name>desktop::ProjectUnitsDialog</name>
    <message>
        <source>Show &quot;%1&quot; in the units of the preferences</source>
        <translation>以首选项中的单位显示“%1”</translation>
    </message>
    <message>
        <source>Show &quot;%1&quot; in %2</source>
        <translation>以 %2 显示“%1”</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>&amp;Unit system in which &quot;%1&quot; is shown:</source>
        <translation>显示“%1”所用的单位制(&amp;U)：</translation>
    </message>
    <message>
        <source>The values do not change, nor do the documents and cards of the solver.</source>
        <translation>数值不会改变，求解器的文档和卡片也不会改变。</translation>
    </message>
    <message>
        <source>The units cannot be set</source>
        <translation>无法设置单位</translation>
    </message>
</context>
<context>
    <name>desktop::Sessions</name>
    <message>
        <source>Changes of a project cannot be determined</source>
        <translation>无法确定项目的更改</translation>
    </message>
</context>
<context>
    <name>desktop::UnappliedEdits</name>
    <message>
        <source>The changes of &quot;%1&quot; in its editor have not been applied.</source>
        <translation>编辑器中对“%1”的更改尚未应用。</translation>
    </message>
    <message>
        <source>The changes of &quot;%1&quot; that were not applied are shown in its editor again.</source>
        <translation>“%1”未应用的更改已重新显示在其编辑器中。</translation>
    </message>
    <message>
        <source>The changes of &quot;%1&quot; that were not applied cannot be shown again.</source>
        <translation>“%1”未应用的更改无法重新显示。</translation>
    </message>
</context>
<context>
    <name>desktop::UnitChoice</name>
    <message>
        <source>As in the preferences (%1)</source>
        <translation>与首选项相同 (%1)</translation>
    </message>
    <message>
        <source>Own base units</source>
        <translation>自定义基本单位</translation>
    </message>
    <message>
        <source>Unit system</source>
        <translation>单位制</translation>
    </message>
    <message>
        <source>Base units</source>
        <translation>基本单位</translation>
    </message>
    <message>
        <source>Stress in %1, density in %2, thermal conductivity in %3</source>
        <translation>应力 %1，密度 %2，导热系数 %3</translation>
    </message>
    <message>
        <source>As the project (%1)</source>
        <translation>与项目相同（%1）</translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>尚未选择</translation>
    </message>
</context>
<context>
    <name>desktop::UnitsDisplay</name>
    <message>
        <source>The unit system cannot be shown</source>
        <translation>无法显示单位制</translation>
    </message>
    <message>
        <source>Units: %1</source>
        <translation>单位：%1</translation>
    </message>
    <message>
        <source>own</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is shown in %2. &quot;Project &gt; Units&quot; changes this.</source>
        <translation>“%1”以 %2 显示。可通过“项目 &gt; 单位”更改。</translation>
    </message>
    <message>
        <source>The unit system of the project &quot;%1&quot; cannot be read: %2</source>
        <translation>无法读取项目“%1”的单位制：%2</translation>
    </message>
</context>
<context>
    <name>desktop::UnitsPage</name>
    <message>
        <source>Units</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>&amp;Unit system of projects:</source>
        <translation>项目的单位制(&amp;U)：</translation>
    </message>
    <message>
        <source>Projects that have no unit system of their own are shown in it. &quot;Project &gt; Units&quot; gives a project its own.</source>
        <translation>没有自己单位制的项目以此显示。“项目 &gt; 单位”为项目设置自己的单位制。</translation>
    </message>
</context>
<context>
    <name>desktop::ValuesOfDeckModel</name>
    <message>
        <source>Material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>检查结果</translation>
    </message>
</context>
<context>
    <name>kelta</name>
    <message>
        <source>No module was found in %1.</source>
        <translation>在 %1 中未找到模块。</translation>
    </message>
    <message>
        <source>HOME is not the name of a folder. The settings of this run are not stored.</source>
        <translation>HOME 不是文件夹的名称。本次运行的设置不会保存。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular file. The settings of this run are not stored.</source>
        <translation>“%1”不是普通文件。本次运行的设置不会保存。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; is damaged or cannot be read. Settings that cannot be read have their defaults.</source>
        <translation>设置文件“%1”已损坏或无法读取。无法读取的设置使用默认值。</translation>
    </message>
</context>
<context>
    <name>projectfile::ExchangeImport</name>
    <message>
        <source>null</source>
        <translation>空值</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>真或假</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>数组</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>a whole number from 0 to 4294967295</source>
        <translation>0 到 4294967295 的整数</translation>
    </message>
    <message>
        <source>%1: is %2; %3 is needed</source>
        <translation>%1：是%2；需要%3</translation>
    </message>
    <message>
        <source>material %1 &quot;%2&quot;: %3</source>
        <translation>材料 %1“%2”：%3</translation>
    </message>
    <message>
        <source>property %1: %2</source>
        <translation>属性 %1：%2</translation>
    </message>
    <message>
        <source>property %1 &quot;%2&quot;: %3</source>
        <translation>属性 %1“%2”：%3</translation>
    </message>
    <message>
        <source>the document has no number for it, which is read as 0</source>
        <translation>文档中没有它的数值，按 0 读取</translation>
    </message>
    <message>
        <source>its key is &quot;%1&quot; in the document and &quot;%2&quot; in the catalogue; the key of the document was kept</source>
        <translation>它的键在文档中是“%1”，在目录中是“%2”；保留了文档中的键</translation>
    </message>
    <message>
        <source>its name is &quot;%1&quot; in the document and &quot;%2&quot; in the catalogue; the name of the document was kept</source>
        <translation>它的名称在文档中是“%1”，在目录中是“%2”；保留了文档中的名称</translation>
    </message>
    <message>
        <source>documents carry no words; &quot;%1&quot; of the catalogue was taken</source>
        <translation>文档不传递文字；采用了目录中的“%1”</translation>
    </message>
    <message>
        <source>documents carry no lists; it is empty</source>
        <translation>文档不传递列表；它为空</translation>
    </message>
    <message>
        <source>the document has it more than once; the last one was used</source>
        <translation>它在文档中出现两次；采用了最后一个</translation>
    </message>
    <message>
        <source>the document has no number for it; it was given the number %1</source>
        <translation>文档中没有它的编号；已赋予编号 %1</translation>
    </message>
    <message>
        <source>its number in the document is %1, which a later material has too; it was given the number %2</source>
        <translation>它在文档中的编号 %1 与后面的材料相同；已赋予编号 %2</translation>
    </message>
    <message>
        <source>its number in the document is %1, which no object can have; it was given the number %2</source>
        <translation>它在文档中的编号是 %1，对象不能使用该编号；已赋予编号 %2</translation>
    </message>
    <message>
        <source>the document has no name for it</source>
        <translation>文档中没有它的名称</translation>
    </message>
    <message>
        <source>it is a project file, which needs no import</source>
        <translation>这是项目文件，无需导入</translation>
    </message>
    <message>
        <source>an analysis document holds no materials; give the material document</source>
        <translation>分析文档不包含材料；请提供材料文档</translation>
    </message>
    <message>
        <source>it is not a material document: &quot;proj_type&quot; must be 2</source>
        <translation>这不是材料文档：“proj_type”必须为 2</translation>
    </message>
    <message>
        <source>the document holds no materials</source>
        <translation>文档不包含材料</translation>
    </message>
    <message>
        <source>%1: occurs more than once; the last one was used</source>
        <translation>%1：出现多次；使用最后一个</translation>
    </message>
    <message>
        <source>it is not in the catalogue; its unit, description and category are lost</source>
        <translation>目录中没有它；它的单位、说明和类别已丢失</translation>
    </message>
    <message>
        <source>Further doubts are not listed: %1.</source>
        <translation>未列出的其他疑问：%1。</translation>
    </message>
</context>
<context>
    <name>projectfile::ProjectFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>文件是空的。</translation>
    </message>
    <message>
        <source>The file was written by a later version of the program, in version %1 of the format; this program reads up to version %2.</source>
        <translation>该文件由更新版本的程序写入，格式版本为 %1；本程序最高可读取版本 %2。</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>数组</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>第 %1 行，第 %2 列：%3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must not be empty</source>
        <translation>“%1”不得为空</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which contains a zero character</source>
        <translation>“%1”为 %2，其中含有零字符</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is 0 but must be from 1 to 4294967295</source>
        <translation>“%1”为 0，但必须在 1 到 4294967295 之间</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which is the number of %3 too</source>
        <translation>“%1”为 %2，%3 也使用该编号</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which is the name of %3 too</source>
        <translation>“%1”为 %2，%3 也使用该名称</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 but must be from %3 to %4, because object numbers are not reused</source>
        <translation>“%1”为 %2，但必须在 %3 到 %4 之间，因为对象编号不会重复使用</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>“%1”必须是对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an array</source>
        <translation>“%1”必须是数组</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a text</source>
        <translation>“%1”必须是文本</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, but the object itself has %3</source>
        <translation>“%1”为 %2，但对象本身为 %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be the number of an object</source>
        <translation>“%1”必须是对象的编号</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, but &quot;materials&quot; and &quot;objects&quot; have no such object</source>
        <translation>“%1”为 %2，但“materials”和“objects”中没有此对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which occurs twice</source>
        <translation>“%1”为 %2，出现了两次</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is object %2, which &quot;database.objects.object&quot; does not have</source>
        <translation>“%1”是对象 %2，而“database.objects.object”中没有该对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 but %3 in the database; %2 is used.</source>
        <translation>“%1”为 %2，而数据库中为 %3；使用 %2。</translation>
    </message>
    <message>
        <source>not a text</source>
        <translation>不是文本</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, the object itself.</source>
        <translation>“%1”为 %2，即对象自身。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, but there is no such object.</source>
        <translation>“%1”为 %2，但没有这样的对象。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which occurs twice.</source>
        <translation>“%1”为 %2，出现了两次。</translation>
    </message>
    <message>
        <source>This is not a project file: its member &quot;format&quot; is not &quot;%1&quot;.</source>
        <translation>这不是项目文件：其成员“format”不是“%1”。</translation>
    </message>
    <message>
        <source>an array of objects</source>
        <translation>对象数组</translation>
    </message>
    <message>
        <source>an array of numbers</source>
        <translation>数字数组</translation>
    </message>
    <message>
        <source>an array of the numbers of objects</source>
        <translation>对象编号数组</translation>
    </message>
    <message>
        <source>an array of four numbers: red, green, blue and opacity</source>
        <translation>四个数字的数组：红、绿、蓝和不透明度</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>a number from 0 to 1</source>
        <translation>0 到 1 之间的数字</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 或 false</translation>
    </message>
    <message>
        <source>a whole number of 32 bits</source>
        <translation>32 位整数</translation>
    </message>
    <message>
        <source>the number of an object, from 1 to 4294967295</source>
        <translation>对象编号，1 到 4294967295</translation>
    </message>
    <message>
        <source>the number of the next object, from 1 to 4294967296</source>
        <translation>下一个对象的编号，1 到 4294967296</translation>
    </message>
    <message>
        <source>the number of a category, 0 to 9</source>
        <translation>类别编号，0 到 9</translation>
    </message>
    <message>
        <source>the version of the format, a whole number from 1</source>
        <translation>格式版本，从 1 开始的整数</translation>
    </message>
    <message>
        <source>The text is %1 but must be %2</source>
        <translation>文本是%1，但必须是%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 but must be %3</source>
        <translation>“%1”为 %2，但必须是%3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>缺少“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, but objects of this class belong in &quot;materials&quot;</source>
        <translation>“%1”是 %2，但此类对象应位于“materials”中</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out; the label of the object is %2.</source>
        <translation>“%1”被忽略；该对象的标签是 %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which is in another group or contains this group.</source>
        <translation>“%1”是 %2，它已在另一个组中，或包含此组。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which is nested in too many groups.</source>
        <translation>“%1”是%2，它嵌套在过多的组中。</translation>
    </message>
</context>
<context>
    <name>projectfile::ProjectStore</name>
    <message>
        <source>The file is too large for a project.</source>
        <translation>文件过大，不可能是项目。</translation>
    </message>
    <message>
        <source>The file is too large for the memory.</source>
        <translation>文件过大，内存不足。</translation>
    </message>
    <message>
        <source>Another program changed the file while it was read. Try again.</source>
        <translation>读取文件时，另一个程序更改了它。请重试。</translation>
    </message>
    <message>
        <source>The name of a file is empty.</source>
        <translation>文件名为空。</translation>
    </message>
    <message>
        <source>This is a folder; a file is needed.</source>
        <translation>这是文件夹；需要文件。</translation>
    </message>
    <message>
        <source>This is a device or a pipe; a file is needed.</source>
        <translation>这是设备或管道；需要文件。</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; does not exist.</source>
        <translation>文件夹“%1”不存在。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a file; a folder is needed.</source>
        <translation>“%1”是文件；需要文件夹。</translation>
    </message>
    <message>
        <source>%1 (%2 on %3)</source>
        <translation>%1（%3 上的 %2）</translation>
    </message>
    <message>
        <source>Its lock file &apos;%1&apos; is not a regular file. Remove it.</source>
        <translation>其锁文件“%1”不是普通文件。请将其删除。</translation>
    </message>
</context>
<context>
    <name>vxCAE::SolverCard</name>
    <message>
        <source>elasticity</source>
        <translation>弹性</translation>
    </message>
    <message>
        <source>plasticity</source>
        <translation>塑性</translation>
    </message>
    <message>
        <source>visco-elasticity</source>
        <translation>粘弹性</translation>
    </message>
    <message>
        <source>creep</source>
        <translation>蠕变</translation>
    </message>
    <message>
        <source>density</source>
        <translation>密度</translation>
    </message>
    <message>
        <source>specific heat</source>
        <translation>比热</translation>
    </message>
    <message>
        <source>thermal conductivity</source>
        <translation>热导率</translation>
    </message>
</context>
<context>
    <name>vxConstitutive::Finding</name>
    <message>
        <source>%1: the constant %2 is missing. The model has no curve without it.</source>
        <translation>%1：缺少常数%2。没有该常数，模型就没有曲线。</translation>
    </message>
    <message>
        <source>%1: the constant %2 is %3. It must be a finite number.</source>
        <translation>%1：常数%2为%3，必须是有限的数。</translation>
    </message>
    <message>
        <source>Poisson&apos;s ratio is %1. It must be greater than -1 and less than 0.5.</source>
        <translation>泊松比为%1，必须大于-1且小于0.5。</translation>
    </message>
    <message>
        <source>C10 is %1 Pa, but half of Mu is %2 Pa. The curve uses C10. Remove one of the two constants.</source>
        <translation>C10为%1 Pa，而Mu的一半为%2 Pa。曲线使用C10。请删除其中一个常数。</translation>
    </message>
    <message>
        <source>%1: D1 is 0, so the curve is incompressible. Some solvers do the same, others use a bulk modulus of 20 times the shear modulus. Remove D1 or give it a value.</source>
        <translation>%1：D1为0，因此曲线不可压缩。有些求解器也这样处理，另一些则采用剪切模量20倍的体积模量。请删除D1或给出数值。</translation>
    </message>
    <message>
        <source>%1: D1 is %2 1/Pa. A bulk modulus cannot be negative. The curve is incompressible.</source>
        <translation>%1：D1为%2 1/Pa。体积模量不能为负。曲线按不可压缩计算。</translation>
    </message>
    <message>
        <source>The bulk modulus is only %1 times the shear modulus (Poisson&apos;s ratio %2). For rubber it is some hundred times. Check D1.</source>
        <translation>体积模量仅为剪切模量的%1倍（泊松比%2）。橡胶的体积模量是其数百倍。请检查D1。</translation>
    </message>
    <message>
        <source>The limiting stretch is %1. It must be greater than 1, which is the stretch of the chains at rest.</source>
        <translation>极限伸长比为%1，必须大于1，即静止时分子链的伸长比。</translation>
    </message>
    <message>
        <source>%1: the initial shear modulus is %2 Pa. It must be greater than 0; otherwise the material is unstable without any load.</source>
        <translation>%1：初始剪切模量为%2 Pa，必须大于0，否则材料在无载荷时就不稳定。</translation>
    </message>
    <message>
        <source>Mu, the factor of the series, is %1 Pa. The initial shear modulus is %2 Pa.</source>
        <translation>Mu是级数的系数，为%1 Pa。初始剪切模量为%2 Pa。</translation>
    </message>
    <message>
        <source>The catalogue has no constants for the hardening type &quot;%1&quot;, so there is no curve. Use Bilinear or Multilinear.</source>
        <translation>目录中没有硬化类型“%1”的常数，因此没有曲线。请使用Bilinear或Multilinear。</translation>
    </message>
    <message>
        <source>The hardening type &quot;%1&quot; is not known. Use Bilinear or Multilinear.</source>
        <translation>硬化类型“%1”未知。请使用Bilinear或Multilinear。</translation>
    </message>
    <message>
        <source>The yield type &quot;%1&quot; is not known. Use Mises, Mohr-Coulomb or Drucker-Prager.</source>
        <translation>屈服类型“%1”未知。请使用Mises、Mohr-Coulomb或Drucker-Prager。</translation>
    </message>
    <message>
        <source>The stress falls from the plastic strain %1 on. A solver finds no unique solution there.</source>
        <translation>从塑性应变%1起应力下降，求解器在那里找不到唯一解。</translation>
    </message>
    <message>
        <source>The hardening modulus %1 Pa is more than a tenth of Young&apos;s modulus %2 Pa. Check that it is the slope against plastic strain.</source>
        <translation>硬化模量%1 Pa超过杨氏模量%2 Pa的十分之一。请确认它是对塑性应变的斜率。</translation>
    </message>
    <message>
        <source>There are %1 yield stresses and %2 plastic strains. The values without a partner are left out.</source>
        <translation>有%1个屈服应力和%2个塑性应变。没有配对的值被忽略。</translation>
    </message>
    <message>
        <source>The first plastic strain is %1. A table must begin with 0. Some solvers shift it without a message.</source>
        <translation>第一个塑性应变为%1。表格必须从0开始。有些求解器会不加提示地平移它。</translation>
    </message>
    <message>
        <source>Row %1: the plastic strain %2 is not greater than the one in the row before. The row is left out.</source>
        <translation>第%1行：塑性应变%2不大于上一行的值。该行被忽略。</translation>
    </message>
    <message>
        <source>%1: the catalogue has no cohesion. Give a cohesion with the curve, or read the curve in multiples of the cohesion.</source>
        <translation>%1：目录中没有黏聚力。请随曲线给出黏聚力，或以黏聚力的倍数读取曲线。</translation>
    </message>
    <message>
        <source>The plastic viscosity is %1. Solver cards have a cohesion in its place. No curve uses it.</source>
        <translation>塑性黏度为%1。求解器卡片在该位置是黏聚力。没有曲线使用它。</translation>
    </message>
    <message>
        <source>Drucker-Prager: the catalogue does not say which cone belongs to the friction angle. The curve shows three cones: through the compression meridian, through the extension meridian, and for plane strain.</source>
        <translation>Drucker-Prager：目录没有说明摩擦角对应哪个圆锥。曲线显示三个圆锥：通过压缩子午线、通过拉伸子午线和平面应变。</translation>
    </message>
    <message>
        <source>%1: the catalogue has no dilation angle. Solvers need one.</source>
        <translation>%1：目录中没有剪胀角，而求解器需要它。</translation>
    </message>
    <message>
        <source>The friction angle is %1 degrees. It must be at least 0 and less than 90.</source>
        <translation>摩擦角为%1度，必须不小于0且小于90。</translation>
    </message>
    <message>
        <source>The friction angle is taken as %1 degrees. If it is in radians, multiply it by 57.3.</source>
        <translation>摩擦角按%1度处理。若以弧度给出，请乘以57.3。</translation>
    </message>
    <message>
        <source>The time exponent m is %1. The rate form needs -1 &lt; m &lt;= 0. A value between 0 and 1 belongs to the total form, whose exponent is m + 1.</source>
        <translation>时间指数m为%1。率形式要求-1 &lt; m &lt;= 0。0到1之间的值属于总量形式，其指数为m + 1。</translation>
    </message>
    <message>
        <source>The stress exponent n is %1. It must be greater than 0.</source>
        <translation>应力指数n为%1，必须大于0。</translation>
    </message>
    <message>
        <source>The creep constant A is %1 in Pa and s. CalculiX replaces a value below 1e-20 by 1e-20. Write its input in MPa.</source>
        <translation>蠕变常数A以Pa和s计为%1。CalculiX会把小于1e-20的值替换为1e-20。请以MPa书写其输入。</translation>
    </message>
    <message>
        <source>The relaxing part of the shear modulus is %1. It must be at least 0 and less than 1.</source>
        <translation>剪切模量的松弛部分为%1，必须不小于0且小于1。</translation>
    </message>
    <message>
        <source>The shear relaxation modulus is %1. It is taken as the relaxing part of the shear modulus, which must be less than 1. Divide a modulus in Pa by the shear modulus.</source>
        <translation>剪切松弛模量为%1。它按剪切模量的松弛部分处理，必须小于1。请将以Pa计的模量除以剪切模量。</translation>
    </message>
    <message>
        <source>%1: without Young&apos;s modulus and Poisson&apos;s ratio, some curves are missing or are multiples of a modulus.</source>
        <translation>%1：没有杨氏模量和泊松比，部分曲线缺失或为某个模量的倍数。</translation>
    </message>
    <message>
        <source>%2 has no response in the mode %1.</source>
        <translation>%2在模式%1下没有响应。</translation>
    </message>
    <message>
        <source>%1: the material is unstable from %2 on by Drucker&apos;s criterion. A solver may fail there.</source>
        <translation>%1：按Drucker准则，材料从%2起不稳定。求解器在那里可能失败。</translation>
    </message>
    <message>
        <source>The curve has strains up to %1. Linear elasticity is valid for strains below 0.05.</source>
        <translation>曲线的应变达到%1。线弹性适用于小于0.05的应变。</translation>
    </message>
    <message>
        <source>%1: the chains reach their limiting stretch at %2, inside the range up to %3. The five-term series has no limit there.</source>
        <translation>%1：分子链在%2处达到极限伸长比，位于到%3为止的范围之内。五项级数在那里没有极限。</translation>
    </message>
    <message>
        <source>At %1, the chains are at %3 of their limiting stretch. The five-term series is %2 % below the inverse Langevin function.</source>
        <translation>在%1处，分子链达到其极限伸长比的%3。五项级数比逆Langevin函数低%2 %。</translation>
    </message>
    <message>
        <source>The curve is incompressible, but the material has a D1. With D1 the stress differs by a factor of up to %1, at the stretch %2.</source>
        <translation>曲线按不可压缩绘制，但材料有D1。考虑D1时，应力最多相差%1倍，出现在伸长比%2处。</translation>
    </message>
    <message>
        <source>%1: an incompressible material has no volumetric response. Give D1 or Poisson&apos;s ratio, and do not request an incompressible curve.</source>
        <translation>%1：不可压缩材料没有体积响应。请给出D1或泊松比，并且不要请求不可压缩曲线。</translation>
    </message>
    <message>
        <source>The bar necks at the engineering strain %1, where the engineering stress is largest: %2 Pa (Considere).</source>
        <translation>试棒在工程应变%1处颈缩，此时工程应力最大：%2 Pa（Considère）。</translation>
    </message>
    <message>
        <source>A creep curve needs at least one stress.</source>
        <translation>蠕变曲线至少需要一个应力。</translation>
    </message>
    <message>
        <source>After the last row, from the plastic strain %1 on, the stress stays constant, as in solvers.</source>
        <translation>最后一行之后，从塑性应变%1起，应力保持不变，与求解器一致。</translation>
    </message>
    <message>
        <source>%1: the cohesion is not known. Pressure and Mises stress are multiples of it.</source>
        <translation>%1：黏聚力未知。压力和Mises应力为其倍数。</translation>
    </message>
    <message>
        <source>The instantaneous shear modulus is not known. The curve is a multiple of it.</source>
        <translation>瞬时剪切模量未知。曲线为其倍数。</translation>
    </message>
    <message>
        <source>The data are not text: byte %1 is a character that text does not have. Export the data as CSV.</source>
        <translation>数据不是文本：第%1字节是文本中不会出现的字符。请将数据导出为CSV。</translation>
    </message>
    <message>
        <source>No line has two numbers. A test needs a column such as strain, stretch or time, and a column such as stress.</source>
        <translation>没有一行含有两个数。试验需要一列应变、伸长比或时间之类的数据，以及一列应力之类的数据。</translation>
    </message>
    <message>
        <source>Each line has only one number. If there are more, give the separator.</source>
        <translation>每行只有一个数。若不止一个，请给出分隔符。</translation>
    </message>
    <message>
        <source>The numbers have decimal commas.</source>
        <translation>数字使用小数逗号。</translation>
    </message>
    <message>
        <source>Commas are read as decimal commas, but they may group thousands: &quot;%1&quot;. Give the decimal mark.</source>
        <translation>逗号按小数逗号读取，但也可能是千位分隔符：“%1”。请给出小数点符号。</translation>
    </message>
    <message>
        <source>No column was found for: %1. Choose a column.</source>
        <translation>未找到对应的列：%1。请选择一列。</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot;: choose its meaning: %2.</source>
        <translation>列“%1”：请选择其含义：%2。</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; has no unit. Give one.</source>
        <translation>列“%1”没有单位。请给出单位。</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot;: the unit &quot;%2&quot; is not known or does not fit. Give another unit.</source>
        <translation>列“%1”：单位“%2”未知或不适用。请给出其他单位。</translation>
    </message>
    <message>
        <source>A creep curve needs the stress of the test. Give the stress.</source>
        <translation>蠕变曲线需要试验的应力。请给出应力。</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; does not say whether it is true or engineering. It is taken as %2.</source>
        <translation>列“%1”没有说明是真实值还是工程值，按%2处理。</translation>
    </message>
    <message>
        <source>Several columns fit. Column &quot;%1&quot; is used.</source>
        <translation>多列符合条件，使用列“%1”。</translation>
    </message>
    <message>
        <source>Test &quot;%1&quot;: all measured values are 0.</source>
        <translation>试验“%1”：所有测量值均为0。</translation>
    </message>
    <message>
        <source>Test &quot;%1&quot; has no usable point.</source>
        <translation>试验“%1”没有可用的点。</translation>
    </message>
    <message>
        <source>Test &quot;%1&quot; has %2 points. The fit uses %3 averages of neighbours.</source>
        <translation>试验“%1”有%2个点。拟合使用%3个相邻点的平均值。</translation>
    </message>
    <message>
        <source>%1: there are no data for a fit of this model.</source>
        <translation>%1：没有可用于拟合该模型的数据。</translation>
    </message>
    <message>
        <source>%1: there are %2 points, no more than constants. The error cannot be estimated.</source>
        <translation>%1：只有%2个点，不多于常数个数。无法估计误差。</translation>
    </message>
    <message>
        <source>The data do not determine %1. They determine only %2. Add another kind of test.</source>
        <translation>数据不能确定%1，只能确定%2。请增加另一种试验。</translation>
    </message>
    <message>
        <source>%1 has no influence on these tests. Its value is arbitrary. Add another kind of test, or hold it fixed.</source>
        <translation>%1对这些试验没有影响，其值是任意的。请增加另一种试验，或将其固定。</translation>
    </message>
    <message>
        <source>%1 is poorly determined: its standard error is %2 % of its value.</source>
        <translation>%1的确定性较差：其标准误差为其值的%2 %。</translation>
    </message>
    <message>
        <source>%1 is at its bound %2. The best fit is beyond it.</source>
        <translation>%1处于边界%2上。最佳拟合在边界之外。</translation>
    </message>
    <message>
        <source>The limiting stretch tends to infinity: the data, with chain stretches up to %1, show no stiffening. Use a model without a limiting stretch.</source>
        <translation>极限伸长比趋于无穷：数据的链伸长比最大为%1，没有显示硬化。请使用没有极限伸长比的模型。</translation>
    </message>
    <message>
        <source>Stability over the range raises the residual from %2 to %1.</source>
        <translation>在该范围内保持稳定使残差从%2增大到%1。</translation>
    </message>
    <message>
        <source>%1: the constants are not stable over the whole requested range.</source>
        <translation>%1：常数在所要求的整个范围内并不都稳定。</translation>
    </message>
    <message>
        <source>%1: no constants of a stable material come near the data. Check the signs, units and modes of the tests.</source>
        <translation>%1：没有稳定材料的常数能接近数据。请检查试验的符号、单位和模式。</translation>
    </message>
    <message>
        <source>%1: the fit was cancelled.</source>
        <translation>%1：拟合已取消。</translation>
    </message>
    <message>
        <source>The stress falls by up to %1 % of its largest value while the plastic strain rises. Neighbours are averaged so that it does not fall.</source>
        <translation>塑性应变增大时，应力下降最多达其最大值的%1 %。对相邻点取平均，使其不下降。</translation>
    </message>
    <message>
        <source>%2 points after the largest force, at the engineering strain %1, are left out because the bar necks there.</source>
        <translation>最大力（工程应变%1）之后的%2个点被忽略，因为试棒在那里颈缩。</translation>
    </message>
    <message>
        <source>Young&apos;s modulus %1 Pa is taken from the first part of the curve. Give it if it is known.</source>
        <translation>杨氏模量%1 Pa取自曲线的起始段。若已知，请给出。</translation>
    </message>
    <message>
        <source>Test &quot;%1&quot; has no elastic part for Young&apos;s modulus. Give Young&apos;s modulus.</source>
        <translation>试验“%1”没有可用于确定杨氏模量的弹性段。请给出杨氏模量。</translation>
    </message>
    <message>
        <source>Test &quot;%1&quot; does not reach the offset yield stress.</source>
        <translation>试验“%1”没有达到规定残余应变的屈服应力。</translation>
    </message>
    <message>
        <source>In the volumetric tests, the stress opposes the change of volume. D1 is not fitted. Check the sign of the stress.</source>
        <translation>在体积试验中，应力与体积变化方向相反。不拟合D1。请检查应力的符号。</translation>
    </message>
    <message>
        <source>Creep rates are left out because there are creep curves.</source>
        <translation>由于有蠕变曲线，蠕变速率被忽略。</translation>
    </message>
    <message>
        <source>All creep data are at one stress, which does not determine the exponent n. Add another stress, or hold n fixed.</source>
        <translation>所有蠕变数据都在同一应力下，无法确定指数n。请增加另一应力，或固定n。</translation>
    </message>
    <message>
        <source>The relaxation time %1 s is outside the measured times, %2 s to %3 s.</source>
        <translation>松弛时间%1 s超出测量时间范围（%2 s至%3 s）。</translation>
    </message>
    <message>
        <source>%4: the model has no value at %3 of the points. At the first of them, the %1 is %2.</source>
        <translation>%4：模型在%3个点上没有值。其中第一个点的%1为%2。</translation>
    </message>
    <message>
        <source>%4: no finite value exists at %3 of the points. At the first of them, the %1 is %2. The constants or the range are too large, or the chains are at their limit.</source>
        <translation>%4：%3个点上不存在有限值。其中第一个点的%1为%2。常数或范围过大，或分子链已达极限。</translation>
    </message>
    <message>
        <source>%4: there is no equilibrium at %3 of the points. At the first of them, the %1 is %2. There the material resists a change of volume too little to keep the lateral surface free of stress. Check D1.</source>
        <translation>%4：%3个点上不存在平衡。其中第一个点的%1为%2。在那里，材料对体积变化的抵抗太小，无法使侧面保持无应力。请检查 D1。</translation>
    </message>
    <message>
        <source>%1: the library of the solver cannot be loaded: %2. Install the program again.</source>
        <translation>%1：无法加载求解器的库：%2。请重新安装程序。</translation>
    </message>
    <message>
        <source>The model has no value at %3 points. At the first of them, the %1 is %2.</source>
        <translation>模型在%3个点上没有值。其中第一个点的%1为%2。</translation>
    </message>
    <message>
        <source>No finite value exists at %3 points. At the first of them, the %1 is %2. The constants or the range are too large, the chains are at their limit, or there is no equilibrium.</source>
        <translation>%3个点上不存在有限值。其中第一个点的%1为%2。常数或范围过大、分子链已达极限，或不存在平衡。</translation>
    </message>
    <message>
        <source>%1: the material is unstable below the %3 %2 by Drucker&apos;s criterion. A solver may fail there.</source>
        <translation>%1：按德鲁克准则，当%3小于 %2 时材料不稳定。求解器在该处可能失败。</translation>
    </message>
    <message>
        <source>%1: the material is unstable above the %3 %2 by Drucker&apos;s criterion. A solver may fail there.</source>
        <translation>%1：按德鲁克准则，当%3大于 %2 时材料不稳定。求解器在该处可能失败。</translation>
    </message>
    <message>
        <source>The creep strain reaches %1 at the stress %2 Pa. No creep law is valid for strains above 1. Check the range, and the units of the creep constants.</source>
        <translation>在应力 %2 Pa 下，蠕变应变达到 %1。任何蠕变定律都不适用于大于 1 的应变。请检查范围和蠕变常数的单位。</translation>
    </message>
    <message>
        <source>Lines between or after the numbers that are left out, because they are not numbers: %1. The first is line %2.</source>
        <translation>数字之间或之后因不是数字而被忽略的行数：%1。第一处为第 %2 行。</translation>
    </message>
    <message>
        <source>Lines with a cell that is not a number or belongs to no column: %1. The first is line %2.</source>
        <translation>含有非数字或不属于任何列的单元格的行数：%1。第一处为第 %2 行。</translation>
    </message>
    <message>
        <source>Points with a smaller abscissa than the point before: %1.</source>
        <translation>横坐标小于前一点的点数：%1。</translation>
    </message>
    <message>
        <source>Points that repeat another point: %1.</source>
        <translation>与其他点重复的点数：%1。</translation>
    </message>
    <message>
        <source>Points in compression or below 0: %1.</source>
        <translation>受压或小于 0 的点数：%1。</translation>
    </message>
    <message>
        <source>Points that are left out, because they are incomplete or outside the domain of the test: %1.</source>
        <translation>因不完整或超出试验范围而被忽略的点数：%1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must have the form CONSTANT=LOWER:UPPER or CONSTANT=VALUE.</source>
        <translation>“%1”的形式必须为 常数=下限:上限 或 常数=值。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a constant of these models; they have %2.</source>
        <translation>“%1”不是这些模型的常数；它们的常数为 %2。</translation>
    </message>
    <message>
        <source>%1: the lower bound is above the upper one.</source>
        <translation>%1：下限大于上限。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The fit is incompressible. With the D1 of the material, the bulk modulus is %1 times the shear modulus (Poisson&apos;s ratio %2).</source>
        <translation>拟合按不可压缩进行。采用材料的 D1 时，体积模量为剪切模量的 %1 倍（泊松比 %2）。</translation>
    </message>
    <message>
        <source>The fit is incompressible, but the D1 of the material contradicts it: the bulk modulus would be only %1 times the shear modulus (Poisson&apos;s ratio %2). For rubber it is some hundred times.</source>
        <translation>拟合按不可压缩进行，但材料的 D1 与之矛盾：体积模量仅为剪切模量的 %1 倍（泊松比 %2）。橡胶通常为数百倍。</translation>
    </message>
    <message>
        <source>%1: the constant %2 is %3 in SI units. It must be greater than 0.</source>
        <translation>%1：常数%2为%3（SI 单位）。它必须大于0。</translation>
    </message>
    <message>
        <source>There is no yield surface below the pressure %1 Pa, which is its apex.</source>
        <translation>压力低于 %1 Pa（屈服面的顶点）时没有屈服面。</translation>
    </message>
    <message>
        <source>There is no yield surface below the pressure of %1 times the cohesion, which is its apex.</source>
        <translation>压力低于黏聚力的 %1 倍（屈服面的顶点）时没有屈服面。</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; has %2 stresses, each of which is a creep test. Choose one of them.</source>
        <translation>列“%1”有%2个应力，每个应力对应一次蠕变试验。请选择其中一个。</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; has the stress of the creep test, but no unit of stress. Write the unit behind its name, or give the stress.</source>
        <translation>列“%1”是蠕变试验的应力，但没有应力单位。请在列名后写出单位，或给出应力。</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; has more than %2 different stresses, but a creep test has a constant one. Give the stress.</source>
        <translation>列“%1”有超过%2个不同的应力，而蠕变试验的应力是恒定的。请给出应力。</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; has several stresses, but none is %2 Pa.</source>
        <translation>列“%1”有多个应力，但其中没有%2 Pa。</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; has the stress %2 Pa, but %3 Pa is given and used.</source>
        <translation>列“%1”的应力为%2 Pa，但给定并使用的是%3 Pa。</translation>
    </message>
    <message>
        <source>Young&apos;s modulus of the first part of the curve is %1 Pa. It differs by %3 % from the given %2 Pa, with which the elastic part is taken off.</source>
        <translation>曲线起始段的杨氏模量为%1 Pa，与给定的%2 Pa相差%3 %。扣除弹性部分时使用给定值。</translation>
    </message>
    <message>
        <source>The residual is less than that of %1 (%3 instead of %2), but not by so much that %5 free constants are better than %4.</source>
        <translation>残差小于%1（%3，而非%2），但减小的幅度不足以说明%5个自由常数优于%4个。</translation>
    </message>
    <message>
        <source>The residual is less than that of %1 (%3 instead of %2), but the data do not determine all constants well, or the model is not as stable as requested.</source>
        <translation>残差小于%1（%3，而非%2），但数据不能很好地确定所有常数，或者模型未达到要求的稳定性。</translation>
    </message>
</context>
<context>
    <name>vxConstitutive::Word</name>
    <message>
        <source>linear elasticity</source>
        <translation>线弹性</translation>
    </message>
    <message>
        <source>Neo-Hookean</source>
        <translation>Neo-Hookean</translation>
    </message>
    <message>
        <source>Mooney-Rivlin</source>
        <translation>Mooney-Rivlin</translation>
    </message>
    <message>
        <source>Mooney-Rivlin with C11</source>
        <translation>含C11的Mooney-Rivlin</translation>
    </message>
    <message>
        <source>Arruda-Boyce</source>
        <translation>Arruda-Boyce</translation>
    </message>
    <message>
        <source>Mises plasticity</source>
        <translation>Mises塑性</translation>
    </message>
    <message>
        <source>Drucker-Prager</source>
        <translation>Drucker-Prager</translation>
    </message>
    <message>
        <source>Mohr-Coulomb</source>
        <translation>Mohr-Coulomb</translation>
    </message>
    <message>
        <source>Norton creep</source>
        <translation>Norton蠕变</translation>
    </message>
    <message>
        <source>visco-elasticity</source>
        <translation>黏弹性</translation>
    </message>
    <message>
        <source>multilinear hardening</source>
        <translation>多线性硬化</translation>
    </message>
    <message>
        <source>bilinear hardening</source>
        <translation>双线性硬化</translation>
    </message>
    <message>
        <source>uniaxial tension and compression</source>
        <translation>单轴拉伸和压缩</translation>
    </message>
    <message>
        <source>equibiaxial tension</source>
        <translation>等双轴拉伸</translation>
    </message>
    <message>
        <source>planar tension (pure shear)</source>
        <translation>平面拉伸（纯剪切）</translation>
    </message>
    <message>
        <source>simple shear</source>
        <translation>简单剪切</translation>
    </message>
    <message>
        <source>volumetric</source>
        <translation>体积</translation>
    </message>
    <message>
        <source>hardening curve</source>
        <translation>硬化曲线</translation>
    </message>
    <message>
        <source>tensile test</source>
        <translation>拉伸试验</translation>
    </message>
    <message>
        <source>yield surface</source>
        <translation>屈服面</translation>
    </message>
    <message>
        <source>creep</source>
        <translation>蠕变</translation>
    </message>
    <message>
        <source>creep rate</source>
        <translation>蠕变率</translation>
    </message>
    <message>
        <source>shear relaxation</source>
        <translation>剪切松弛</translation>
    </message>
    <message>
        <source>shear creep</source>
        <translation>剪切蠕变</translation>
    </message>
    <message>
        <source>storage and loss</source>
        <translation>储能与损耗</translation>
    </message>
    <message>
        <source>stretch</source>
        <translation>伸长比</translation>
    </message>
    <message>
        <source>amount of shear</source>
        <translation>剪切量</translation>
    </message>
    <message>
        <source>engineering strain</source>
        <translation>工程应变</translation>
    </message>
    <message>
        <source>plastic strain</source>
        <translation>塑性应变</translation>
    </message>
    <message>
        <source>pressure</source>
        <translation>压力</translation>
    </message>
    <message>
        <source>time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>stress</source>
        <translation>应力</translation>
    </message>
    <message>
        <source>frequency</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>nominal stress</source>
        <translation>名义应力</translation>
    </message>
    <message>
        <source>true stress</source>
        <translation>真实应力</translation>
    </message>
    <message>
        <source>nominal shear stress</source>
        <translation>名义剪应力</translation>
    </message>
    <message>
        <source>true shear stress</source>
        <translation>真实剪应力</translation>
    </message>
    <message>
        <source>normal stress difference</source>
        <translation>法向应力差</translation>
    </message>
    <message>
        <source>slope</source>
        <translation>斜率</translation>
    </message>
    <message>
        <source>lateral stretch</source>
        <translation>横向伸长比</translation>
    </message>
    <message>
        <source>volume ratio</source>
        <translation>体积比</translation>
    </message>
    <message>
        <source>Mises stress</source>
        <translation>Mises应力</translation>
    </message>
    <message>
        <source>Mises stress, compression meridian</source>
        <translation>Mises应力，压缩子午线</translation>
    </message>
    <message>
        <source>Mises stress, extension meridian</source>
        <translation>Mises应力，拉伸子午线</translation>
    </message>
    <message>
        <source>Mises stress, outer cone</source>
        <translation>Mises应力，外圆锥</translation>
    </message>
    <message>
        <source>Mises stress, inner cone</source>
        <translation>Mises应力，内圆锥</translation>
    </message>
    <message>
        <source>Mises stress, plane strain</source>
        <translation>Mises应力，平面应变</translation>
    </message>
    <message>
        <source>creep strain</source>
        <translation>蠕变应变</translation>
    </message>
    <message>
        <source>creep strain rate</source>
        <translation>蠕变应变率</translation>
    </message>
    <message>
        <source>relaxation modulus</source>
        <translation>松弛模量</translation>
    </message>
    <message>
        <source>creep compliance</source>
        <translation>蠕变柔量</translation>
    </message>
    <message>
        <source>storage modulus</source>
        <translation>储能模量</translation>
    </message>
    <message>
        <source>loss modulus</source>
        <translation>损耗模量</translation>
    </message>
    <message>
        <source>loss factor</source>
        <translation>损耗因子</translation>
    </message>
    <message>
        <source>%1 / cohesion</source>
        <translation>%1 / 黏聚力</translation>
    </message>
    <message>
        <source>%1 / shear modulus</source>
        <translation>%1 / 剪切模量</translation>
    </message>
    <message>
        <source>%1 x shear modulus</source>
        <translation>%1 × 剪切模量</translation>
    </message>
    <message>
        <source>%1 at %2 Pa</source>
        <translation>%1（%2 Pa）</translation>
    </message>
    <message>
        <source>%1 at %2 s</source>
        <translation>%1（%2 s）</translation>
    </message>
    <message>
        <source>true strain</source>
        <translation>真实应变</translation>
    </message>
    <message>
        <source>volumetric strain</source>
        <translation>体积应变</translation>
    </message>
    <message>
        <source>strain rate</source>
        <translation>应变率</translation>
    </message>
    <message>
        <source>modulus</source>
        <translation>模量</translation>
    </message>
    <message>
        <source>Young&apos;s modulus</source>
        <translation>杨氏模量</translation>
    </message>
    <message>
        <source>Poisson&apos;s ratio</source>
        <translation>泊松比</translation>
    </message>
    <message>
        <source>shear modulus</source>
        <translation>剪切模量</translation>
    </message>
    <message>
        <source>bulk modulus</source>
        <translation>体积模量</translation>
    </message>
    <message>
        <source>factor of the series</source>
        <translation>级数系数</translation>
    </message>
    <message>
        <source>limiting stretch</source>
        <translation>极限伸长比</translation>
    </message>
    <message>
        <source>first constant</source>
        <translation>第一常数</translation>
    </message>
    <message>
        <source>second constant</source>
        <translation>第二常数</translation>
    </message>
    <message>
        <source>mixed constant</source>
        <translation>混合常数</translation>
    </message>
    <message>
        <source>compressibility</source>
        <translation>可压缩性</translation>
    </message>
    <message>
        <source>initial shear modulus</source>
        <translation>初始剪切模量</translation>
    </message>
    <message>
        <source>initial Young&apos;s modulus</source>
        <translation>初始杨氏模量</translation>
    </message>
    <message>
        <source>initial Poisson&apos;s ratio</source>
        <translation>初始泊松比</translation>
    </message>
    <message>
        <source>initial bulk modulus</source>
        <translation>初始体积模量</translation>
    </message>
    <message>
        <source>creep constant</source>
        <translation>蠕变常数</translation>
    </message>
    <message>
        <source>stress exponent</source>
        <translation>应力指数</translation>
    </message>
    <message>
        <source>time exponent</source>
        <translation>时间指数</translation>
    </message>
    <message>
        <source>initial yield stress</source>
        <translation>初始屈服应力</translation>
    </message>
    <message>
        <source>yield stress</source>
        <translation>屈服应力</translation>
    </message>
    <message>
        <source>hardening modulus</source>
        <translation>硬化模量</translation>
    </message>
    <message>
        <source>tangent modulus</source>
        <translation>切线模量</translation>
    </message>
    <message>
        <source>engineering strain at necking</source>
        <translation>颈缩时的工程应变</translation>
    </message>
    <message>
        <source>tensile strength</source>
        <translation>抗拉强度</translation>
    </message>
    <message>
        <source>friction angle</source>
        <translation>摩擦角</translation>
    </message>
    <message>
        <source>relaxing part</source>
        <translation>松弛部分</translation>
    </message>
    <message>
        <source>relaxation time</source>
        <translation>松弛时间</translation>
    </message>
    <message>
        <source>instantaneous shear modulus</source>
        <translation>瞬时剪切模量</translation>
    </message>
    <message>
        <source>long-term shear modulus</source>
        <translation>长期剪切模量</translation>
    </message>
</context>
<context>
    <name>vxInspector</name>
    <message>
        <source>Inspector</source>
        <translation>检查器</translation>
    </message>
</context>
<context>
    <name>vxInspector::AppliedText</name>
    <message>
        <source>%1: %2 values</source>
        <translation>%1：%2 个值</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>The tests are not kept.</source>
        <translation>试验未保存。</translation>
    </message>
    <message>
        <source>Kept tests: %1.</source>
        <translation>保存的试验：%1。</translation>
    </message>
    <message>
        <source>Written to the table of &quot;%1&quot;, which is not applied yet: %2.</source>
        <translation>已写入“%1”的表格（尚未应用）：%2。</translation>
    </message>
    <message>
        <source>Written to &quot;%1&quot;: %2.</source>
        <translation>已写入“%1”：%2。</translation>
    </message>
    <message>
        <source>Removed: %1.</source>
        <translation>已移除：%1。</translation>
    </message>
</context>
<context>
    <name>vxInspector::CardTable</name>
    <message>
        <source>Card</source>
        <translation>卡片</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>No card applies to it.</source>
        <translation>没有适用的卡片。</translation>
    </message>
    <message>
        <source>The numbers of cards are in SI units.</source>
        <translation>卡片中的数值采用 SI 单位。</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>缺少</translation>
    </message>
    <message>
        <source>Row %1 cannot be read: %2</source>
        <translation>无法读取第 %1 行：%2</translation>
    </message>
    <message>
        <source>Deck</source>
        <translation>输入文件</translation>
    </message>
</context>
<context>
    <name>vxInspector::CardsPage</name>
    <message>
        <source>The cards cannot be copied</source>
        <translation>无法复制卡片</translation>
    </message>
    <message>
        <source>C&amp;ards for:</source>
        <translation>卡片适用于(&amp;A)：</translation>
    </message>
    <message>
        <source>The solver of this program</source>
        <translation>本程序的求解器</translation>
    </message>
    <message>
        <source>Cards for</source>
        <translation>卡片适用于</translation>
    </message>
    <message>
        <source>The solver whose input is shown</source>
        <translation>显示其输入的求解器</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the text of the cards</source>
        <translation>复制卡片的文本</translation>
    </message>
    <message>
        <source>Form of the text</source>
        <translation>文本的形式</translation>
    </message>
    <message>
        <source>The form in which the solver reads its input</source>
        <translation>求解器读取输入的形式</translation>
    </message>
</context>
<context>
    <name>vxInspector::CompareTable</name>
    <message>
        <source>%1 (derived)</source>
        <translation>%1（导出）</translation>
    </message>
    <message>
        <source>The values differ.</source>
        <translation>值不同。</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>量</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>The materials have the same values.</source>
        <translation>这些材料的值相同。</translation>
    </message>
    <message>
        <source>Different in %1 of %2 quantities.</source>
        <translation>%2 个量中有 %1 个不同。</translation>
    </message>
    <message>
        <source>With changes that are not applied: %1.</source>
        <translation>含未应用的更改：%1。</translation>
    </message>
    <message>
        <source>Suppressed: %1.</source>
        <translation>已抑制：%1。</translation>
    </message>
</context>
<context>
    <name>vxInspector::ContentView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;table</source>
        <translation>复制表格(&amp;T)</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>The cells cannot be copied</source>
        <translation>无法复制单元格</translation>
    </message>
</context>
<context>
    <name>vxInspector::CurvesContent</name>
    <message>
        <source>%1 (suppressed)</source>
        <translation>%1（已抑制）</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>发现</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>It has no constants of a model with curves: elasticity, hyperelasticity, plasticity, creep or visco-elasticity.</source>
        <translation>它没有带曲线的模型的常数：弹性、超弹性、塑性、蠕变或黏弹性。</translation>
    </message>
    <message>
        <source>The materials have no constants of a model with curves: elasticity, hyperelasticity, plasticity, creep or visco-elasticity.</source>
        <translation>这些材料没有带曲线的模型的常数：弹性、超弹性、塑性、蠕变或黏弹性。</translation>
    </message>
    <message>
        <source>Materials without a model: %1.</source>
        <translation>没有模型的材料：%1。</translation>
    </message>
    <message>
        <source>The constant %1 cannot be read: &quot;%2&quot;. %3</source>
        <translation>无法读取常数“%1”：“%2”。%3</translation>
    </message>
</context>
<context>
    <name>vxInspector::CurvesPage</name>
    <message>
        <source>The curves cannot be drawn</source>
        <translation>无法绘制曲线</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>从(&amp;F)：</translation>
    </message>
    <message>
        <source>t&amp;o:</source>
        <translation>到(&amp;O)：</translation>
    </message>
    <message>
        <source>log x</source>
        <translation>对数 x</translation>
    </message>
    <message>
        <source>Horizontal axis with a logarithmic scale</source>
        <translation>对数刻度的水平轴</translation>
    </message>
    <message>
        <source>log y</source>
        <translation>对数 y</translation>
    </message>
    <message>
        <source>Vertical axis with a logarithmic scale</source>
        <translation>对数刻度的垂直轴</translation>
    </message>
    <message>
        <source>The tests whose curves are drawn. Tests with the same axes can be drawn together.</source>
        <translation>要绘制曲线的试验。坐标轴相同的试验可以一起绘制。</translation>
    </message>
    <message>
        <source>The quantity on the vertical axis</source>
        <translation>垂直轴上的量</translation>
    </message>
    <message>
        <source>Vertical axis</source>
        <translation>垂直轴</translation>
    </message>
    <message>
        <source>Beginning of the horizontal axis</source>
        <translation>水平轴的起点</translation>
    </message>
    <message>
        <source>End of the horizontal axis</source>
        <translation>水平轴的终点</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>全部显示</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>另存为…</translation>
    </message>
    <message>
        <source>Findings about the curves</source>
        <translation>关于曲线的发现</translation>
    </message>
    <message>
        <source>Tests: %1</source>
        <translation>试验：%1</translation>
    </message>
    <message>
        <source>Draw as incompressible</source>
        <translation>按不可压缩绘制</translation>
    </message>
    <message>
        <source>This number cannot be read.</source>
        <translation>无法读取此数字。</translation>
    </message>
    <message>
        <source>Draw chains by the inverse Langevin function</source>
        <translation>按反朗之万函数绘制链</translation>
    </message>
    <message>
        <source>not known: multiples of it</source>
        <translation>未知：以其倍数表示</translation>
    </message>
    <message>
        <source>&amp;Stresses:</source>
        <translation>应力(&amp;S)：</translation>
    </message>
    <message>
        <source>T&amp;ime:</source>
        <translation>时间(&amp;I)：</translation>
    </message>
    <message>
        <source>Co&amp;hesion:</source>
        <translation>粘聚力(&amp;H)：</translation>
    </message>
    <message>
        <source>The stresses of the creep curves, separated by semicolons, with a unit if you like</source>
        <translation>蠕变曲线的应力，以分号分隔，可带单位</translation>
    </message>
    <message>
        <source>The time after loading at which the creep rates are drawn</source>
        <translation>绘制蠕变速率所对应的加载后时间</translation>
    </message>
    <message>
        <source>The cohesion of the yield surface, which the material does not have</source>
        <translation>屈服面的粘聚力（材料没有该值）</translation>
    </message>
</context>
<context>
    <name>vxInspector::DeckForms</name>
    <message>
        <source>As CalculiX reads it</source>
        <translation>CalculiX 所读取的形式</translation>
    </message>
    <message>
        <source>As the commercial relative of CalculiX reads it</source>
        <translation>CalculiX 的商业同源求解器所读取的形式</translation>
    </message>
    <message>
        <source>Fields of 8 characters, of 16 if a number needs them</source>
        <translation>8 字符字段，数字需要时用 16 字符</translation>
    </message>
    <message>
        <source>Small fields: 8 characters, numbers are rounded</source>
        <translation>小字段：8 字符，数字会被舍入</translation>
    </message>
    <message>
        <source>Large fields: 16 characters</source>
        <translation>大字段：16 字符</translation>
    </message>
    <message>
        <source>Free fields, separated by commas</source>
        <translation>自由字段，以逗号分隔</translation>
    </message>
</context>
<context>
    <name>vxInspector::DeckLines</name>
    <message>
        <source>all %1</source>
        <translation>全部 %1</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 及另外 %2 个</translation>
    </message>
    <message>
        <source>Quantities carried: %1, converted: %2, approximated: %3, lost: %4.</source>
        <translation>物理量：已写入 %1，已换算 %2，近似 %3，丢失 %4。</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>被拒绝</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>丢失</translation>
    </message>
    <message>
        <source>Approximated</source>
        <translation>近似</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation>已换算</translation>
    </message>
    <message>
        <source>Carried</source>
        <translation>已写入</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>检查结果</translation>
    </message>
    <message>
        <source>Doubt</source>
        <translation>疑问</translation>
    </message>
</context>
<context>
    <name>vxInspector::FindingTable</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Row %1: The value &quot;%2&quot; of &quot;%3&quot; cannot be read: %4</source>
        <translation>第 %1 行：无法读取“%3”的值“%2”：%4</translation>
    </message>
    <message>
        <source>Doubt</source>
        <translation>疑问</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Remedy</source>
        <translation>修正</translation>
    </message>
    <message>
        <source>Nothing is found.</source>
        <translation>未发现问题。</translation>
    </message>
    <message>
        <source>Findings: %1.</source>
        <translation>结果：%1。</translation>
    </message>
    <message>
        <source>The last %1 are not listed.</source>
        <translation>最后 %1 个未列出。</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Only the models of the first %1 materials are examined.</source>
        <translation>只检查前 %1 个材料的模型。</translation>
    </message>
</context>
<context>
    <name>vxInspector::FindingsPage</name>
    <message>
        <source>&amp;Apply remedy</source>
        <translation>应用修正(&amp;A)</translation>
    </message>
    <message>
        <source>Change the value as the remedy of the selected finding says. The change can be undone.</source>
        <translation>按所选结果的修正建议更改值。更改可以撤消。</translation>
    </message>
    <message>
        <source>The finding cannot be shown in the editor</source>
        <translation>无法在编辑器中显示该结果</translation>
    </message>
    <message>
        <source>The remedy cannot be applied</source>
        <translation>无法应用修正</translation>
    </message>
</context>
<context>
    <name>vxInspector::FitApplying</name>
    <message>
        <source>Apply fit</source>
        <translation>应用拟合</translation>
    </message>
    <message>
        <source>Apply fit to &quot;%1&quot;</source>
        <translation>将拟合应用于“%1”</translation>
    </message>
</context>
<context>
    <name>vxInspector::FitOptions</name>
    <message>
        <source>&amp;Keep rubber stable</source>
        <translation>保持橡胶稳定(&amp;K)</translation>
    </message>
    <message>
        <source>Without this, a fit may be unstable in tests that were not made.</source>
        <translation>否则，拟合在未进行的试验中可能不稳定。</translation>
    </message>
    <message>
        <source>at stretc&amp;hes:</source>
        <translation>伸长比(&amp;H)：</translation>
    </message>
    <message>
        <source>those of the tests</source>
        <translation>试验的伸长比</translation>
    </message>
    <message>
        <source>The first and the last stretch, such as 0.5:3</source>
        <translation>首末伸长比，例如 0.5:3</translation>
    </message>
    <message>
        <source>Diff&amp;erences:</source>
        <translation>差值(&amp;E)：</translation>
    </message>
    <message>
        <source>What is made small: the differences between tests and model, divided by the largest value of their test, by each value, or not divided</source>
        <translation>要使之最小的量：试验与模型之差，除以试验的最大值、除以每个值或不相除</translation>
    </message>
    <message>
        <source>by the largest value</source>
        <translation>按最大值</translation>
    </message>
    <message>
        <source>by each value</source>
        <translation>按每个值</translation>
    </message>
    <message>
        <source>absolute</source>
        <translation>绝对</translation>
    </message>
    <message>
        <source>&amp;Bounds:</source>
        <translation>界限(&amp;B)：</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Bounds of constants, or their values, separated by semicolons, such as C10=0:1 MPa; C01=0. The symbols are those of the results.</source>
        <translation>常数的界限或值，以分号分隔，例如 C10=0:1 MPa; C01=0。符号与结果中的相同。</translation>
    </message>
    <message>
        <source>&amp;Young&apos;s modulus:</source>
        <translation>杨氏模量(&amp;Y)：</translation>
    </message>
    <message>
        <source>the slope of the curve</source>
        <translation>曲线的斜率</translation>
    </message>
    <message>
        <source>Poisson&apos;s ratio:</source>
        <translation>泊松比：</translation>
    </message>
    <message>
        <source>&amp;Offset strain:</source>
        <translation>残余应变(&amp;O)：</translation>
    </message>
    <message>
        <source>The plastic strain at which a metal yields</source>
        <translation>金属屈服时的塑性应变</translation>
    </message>
    <message>
        <source>Tolerance:</source>
        <translation>容差：</translation>
    </message>
    <message>
        <source>The distance of a multilinear curve from the points, as a part of the largest stress</source>
        <translation>多线性曲线与各点的距离，以最大应力的比例表示</translation>
    </message>
    <message>
        <source>The stretches of stability must be two numbers greater than 0 that rise, such as 0.5:3.</source>
        <translation>稳定性的伸长比必须是两个递增且大于 0 的数，例如 0.5:3。</translation>
    </message>
    <message>
        <source>Young&apos;s modulus cannot be read, or is not greater than 0.</source>
        <translation>杨氏模量无法读取，或不大于 0。</translation>
    </message>
    <message>
        <source>Poisson&apos;s ratio must be greater than -1 and not greater than 0.5.</source>
        <translation>泊松比必须大于 -1 且不大于 0.5。</translation>
    </message>
    <message>
        <source>The offset strain must be greater than 0 and not greater than 1.</source>
        <translation>残余应变必须大于 0 且不大于 1。</translation>
    </message>
    <message>
        <source>The tolerance must be greater than 0 and not greater than 1.</source>
        <translation>容差必须大于 0 且不大于 1。</translation>
    </message>
    <message>
        <source>Bounds: %1</source>
        <translation>界限：%1</translation>
    </message>
</context>
<context>
    <name>vxInspector::FitPage</name>
    <message>
        <source>The test data cannot be used</source>
        <translation>无法使用试验数据</translation>
    </message>
    <message>
        <source>The constants cannot be applied</source>
        <translation>无法应用常数</translation>
    </message>
    <message>
        <source>F&amp;it</source>
        <translation>拟合(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2</source>
        <translation>无法读取文件“%1”：%2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than 200 MB and is not read.</source>
        <translation>文件“%1”大于 200 MB，未读取。</translation>
    </message>
    <message>
        <source>The result of the fit cannot be shown</source>
        <translation>无法显示拟合结果</translation>
    </message>
    <message>
        <source>The fit has failed: %1</source>
        <translation>拟合失败：%1</translation>
    </message>
    <message>
        <source>Load test data from a file, or paste columns of numbers, to fit the constants of models to them.</source>
        <translation>从文件加载试验数据或粘贴数字列，以便据此拟合模型的常数。</translation>
    </message>
    <message>
        <source>&amp;Apply to &quot;%1&quot;</source>
        <translation>应用到“%1”(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
    </message>
    <message>
        <source>Select a material that gets the constants.</source>
        <translation>请选择接收常数的材料。</translation>
    </message>
    <message>
        <source>Write the constants of the selected model into the material, and keep the tests with it. The change can be undone.</source>
        <translation>将所选模型的常数写入材料，并随材料保存试验。此更改可以撤销。</translation>
    </message>
    <message>
        <source>The tests are not kept with &quot;%1&quot;</source>
        <translation>试验未随“%1”保存</translation>
    </message>
    <message>
        <source>A table of test data is being read.</source>
        <translation>正在读取试验数据表。</translation>
    </message>
    <message>
        <source>The program does not close</source>
        <translation>程序未关闭</translation>
    </message>
    <message>
        <source>Tests are not kept</source>
        <translation>试验未保存</translation>
    </message>
    <message>
        <source>The fit leaves out these tests, and &quot;Apply&quot; does not keep them: %1. Select a test to see what is missing.</source>
        <translation>拟合略去了以下试验，“应用”也不会保存它们：%1。选择一个试验可查看缺少什么。</translation>
    </message>
    <message>
        <source>These tests of the tab Fit are not kept with a material: %1. If the program closes, they are lost. &quot;Apply&quot; in the tab keeps those that the fit uses.</source>
        <translation>“拟合”选项卡中的以下试验未随任何材料保存：%1。关闭程序后将丢失。选项卡中的“应用”可保存拟合所用的试验。</translation>
    </message>
    <message>
        <source>The tests are being written for the material.</source>
        <translation>正在为该材料写入试验数据。</translation>
    </message>
</context>
<context>
    <name>vxInspector::FitTables</name>
    <message>
        <source>%1 %2 to %3</source>
        <translation>%1 %2 至 %3</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>poorly determined</source>
        <translation>确定性差</translation>
    </message>
    <message>
        <source>at its bound</source>
        <translation>处于边界</translation>
    </message>
    <message>
        <source>not determined by the data</source>
        <translation>数据无法确定</translation>
    </message>
    <message>
        <source>fixed</source>
        <translation>固定</translation>
    </message>
    <message>
        <source>R² %1, %2 points</source>
        <translation>R² %1，%2 个点</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>试验</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点数</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>权重</translation>
    </message>
    <message>
        <source>to be chosen</source>
        <translation>待选择</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>模型</translation>
    </message>
    <message>
        <source>Residual</source>
        <translation>残差</translation>
    </message>
    <message>
        <source>R²</source>
        <translation>R²</translation>
    </message>
    <message>
        <source>Without stability</source>
        <translation>不要求稳定</translation>
    </message>
    <message>
        <source>Stable</source>
        <translation>稳定</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>常数</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>%1 to %2 in all tests</source>
        <translation>所有试验中为 %1 至 %2</translation>
    </message>
    <message>
        <source>otherwise %1 to %2</source>
        <translation>其他为 %1 至 %2</translation>
    </message>
    <message>
        <source>Yield stress %1</source>
        <translation>屈服应力 %1</translation>
    </message>
    <message>
        <source>at plastic strain %1</source>
        <translation>在塑性应变 %1 处</translation>
    </message>
    <message>
        <source>The material was fitted to these tests: %1, residual %2, R² %3.</source>
        <translation>该材料已按这些试验拟合：%1，残差 %2，R² %3。</translation>
    </message>
</context>
<context>
    <name>vxInspector::FitTests</name>
    <message>
        <source>The test data cannot be used</source>
        <translation>无法使用试验数据</translation>
    </message>
</context>
<context>
    <name>vxInspector::Inspector</name>
    <message>
        <source>The inspector cannot be updated</source>
        <translation>无法更新检查器</translation>
    </message>
    <message>
        <source>&amp;Units:</source>
        <translation>单位(&amp;U)：</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>卡片</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>As the project (%1)</source>
        <translation>与项目相同 (%1)</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>拟合</translation>
    </message>
    <message>
        <source>The unit system of values, findings, decks, comparison and curves. It changes no value.</source>
        <translation>数值、检查结果、输入文件、比较和曲线所用的单位制。它不改变任何数值。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>vxInspector::InspectorContent</name>
    <message>
        <source>The inspector cannot be updated</source>
        <translation>无法更新检查器</translation>
    </message>
</context>
<context>
    <name>vxInspector::InspectorDock</name>
    <message>
        <source>Select a material in the project explorer, or open its editor.</source>
        <translation>在项目浏览器中选择一个材料，或打开其编辑器。</translation>
    </message>
    <message>
        <source>The inspector cannot be loaded</source>
        <translation>无法加载检查器</translation>
    </message>
    <message>
        <source>The inspector cannot be loaded; the message log says why.</source>
        <translation>无法加载检查器；原因见消息日志。</translation>
    </message>
</context>
<context>
    <name>vxInspector::KeptMeasurements</name>
    <message>
        <source>The kept tests cannot be read: %1. They are left as they are.</source>
        <translation>无法读取保存的试验：%1。这些试验保持不变。</translation>
    </message>
    <message>
        <source>The tests cannot be written: %1.</source>
        <translation>无法写入试验：%1。</translation>
    </message>
    <message>
        <source>The kept tests cannot be read</source>
        <translation>无法读取保存的试验</translation>
    </message>
</context>
<context>
    <name>vxInspector::LoadedTest</name>
    <message>
        <source>column %1</source>
        <translation>第 %1 列</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>%1 as %2 in %3</source>
        <translation>%1 作为%2，单位 %3</translation>
    </message>
    <message>
        <source>Enter the stress of the creep test.</source>
        <translation>请输入蠕变试验的应力。</translation>
    </message>
    <message>
        <source>Choose the column of the horizontal axis.</source>
        <translation>请选择水平轴的列。</translation>
    </message>
    <message>
        <source>Choose the column of the vertical axis.</source>
        <translation>请选择垂直轴的列。</translation>
    </message>
    <message>
        <source>Choose what the column of the horizontal axis measures.</source>
        <translation>请选择水平轴的列所测量的量。</translation>
    </message>
    <message>
        <source>Choose what the column of the vertical axis measures.</source>
        <translation>请选择垂直轴的列所测量的量。</translation>
    </message>
    <message>
        <source>Enter the unit of the horizontal axis.</source>
        <translation>请输入水平轴的单位。</translation>
    </message>
    <message>
        <source>Enter the unit of the vertical axis.</source>
        <translation>请输入垂直轴的单位。</translation>
    </message>
    <message>
        <source>%1 columns, %2 rows.</source>
        <translation>%1 列，%2 行。</translation>
    </message>
    <message>
        <source>Choose which test it is.</source>
        <translation>请选择这是哪种试验。</translation>
    </message>
    <message>
        <source>%1 points: %2 against %3.</source>
        <translation>%1 个点：%2 对 %3。</translation>
    </message>
    <message>
        <source>The test is being read.</source>
        <translation>正在读取试验。</translation>
    </message>
</context>
<context>
    <name>vxInspector::ModulusChoice</name>
    <message>
        <source>&amp;Modulus:</source>
        <translation>模量(&amp;M)：</translation>
    </message>
    <message>
        <source>The Young&apos;s modulus with which the elastic part is taken off the measured strain</source>
        <translation>用于从测得的应变中减去弹性部分的杨氏模量</translation>
    </message>
    <message>
        <source>of the curve: %1</source>
        <translation>曲线的：%1</translation>
    </message>
    <message>
        <source>of the material: %1</source>
        <translation>材料的：%1</translation>
    </message>
    <message>
        <source>The elastic part is taken off with Young&apos;s modulus %1 (%3 beside the material). The material keeps its %2.</source>
        <translation>弹性部分用杨氏模量 %1 减去（与材料相比 %3）。材料保留其 %2。</translation>
    </message>
    <message>
        <source>Young&apos;s modulus is %1 by the curve and %2 in the material (%3).</source>
        <translation>杨氏模量按曲线为 %1，材料中为 %2（%3）。</translation>
    </message>
    <message>
        <source>Unless you choose otherwise, the elastic part is taken off with that of the curve, and &quot;Apply&quot; writes it.</source>
        <translation>除非您另作选择，弹性部分用曲线的杨氏模量减去，“应用”会写入它。</translation>
    </message>
    <message>
        <source>The elastic part is taken off with that of the material, which keeps it.</source>
        <translation>弹性部分用材料的杨氏模量减去，材料保留该值。</translation>
    </message>
</context>
<context>
    <name>vxInspector::PlotView</name>
    <message>
        <source>&amp;Copy picture</source>
        <translation>复制图片(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;table</source>
        <translation>复制表格(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Save as…</source>
        <translation>另存为(&amp;S)…</translation>
    </message>
    <message>
        <source>Show &amp;everything</source>
        <translation>全部显示(&amp;E)</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>图</translation>
    </message>
    <message>
        <source>Drag a rectangle or turn the wheel to zoom; Home shows everything. A click on the legend hides a curve.</source>
        <translation>拖动矩形或滚动滚轮可缩放；按 Home 键全部显示。单击图例可隐藏曲线。</translation>
    </message>
    <message>
        <source>The plot cannot be drawn</source>
        <translation>无法绘制图</translation>
    </message>
    <message>
        <source>The picture cannot be copied</source>
        <translation>无法复制图片</translation>
    </message>
    <message>
        <source>The table cannot be copied</source>
        <translation>无法复制表格</translation>
    </message>
    <message>
        <source>The plot cannot be saved</source>
        <translation>无法保存图</translation>
    </message>
    <message>
        <source>Picture (*.png);;Drawing (*.svg);;Document (*.pdf);;Table (*.csv)</source>
        <translation>图片 (*.png);;矢量图 (*.svg);;文档 (*.pdf);;表格 (*.csv)</translation>
    </message>
    <message>
        <source>Save plot</source>
        <translation>保存图</translation>
    </message>
    <message>
        <source>curves</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is not written: its name must end in png, svg, pdf or csv.</source>
        <translation>未写入文件“%1”：其名称必须以 png、svg、pdf 或 csv 结尾。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>无法写入文件“%1”：%2</translation>
    </message>
</context>
<context>
    <name>vxInspector::RangeBar</name>
    <message>
        <source>Solids: %1 to %2</source>
        <translation>固体：%1 至 %2</translation>
    </message>
    <message>
        <source>Liquids: %1 to %2</source>
        <translation>液体：%1 至 %2</translation>
    </message>
    <message>
        <source>Gases: %1 to %2</source>
        <translation>气体：%1 至 %2</translation>
    </message>
    <message>
        <source>beyond the known range</source>
        <translation>超出已知范围</translation>
    </message>
    <message>
        <source>below the known range</source>
        <translation>低于已知范围</translation>
    </message>
    <message>
        <source>above the known range</source>
        <translation>高于已知范围</translation>
    </message>
    <message>
        <source>within the known range</source>
        <translation>在已知范围内</translation>
    </message>
    <message>
        <source>The scale is logarithmic.</source>
        <translation>刻度为对数。</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>来源：%1</translation>
    </message>
    <message>
        <source>The scale is logarithmic; 0 is at its left end.</source>
        <translation>标度为对数；0 位于其左端。</translation>
    </message>
</context>
<context>
    <name>vxInspector::Remedying</name>
    <message>
        <source>Apply remedy</source>
        <translation>应用修正</translation>
    </message>
    <message>
        <source>The remedy was applied to &quot;%1&quot;: %2.</source>
        <translation>已对“%1”应用修正：%2。</translation>
    </message>
    <message>
        <source>%1: %2 becomes %3</source>
        <translation>%1：%2 变为 %3</translation>
    </message>
</context>
<context>
    <name>vxInspector::ResultPanel</name>
    <message>
        <source>Fitted models</source>
        <translation>已拟合的模型</translation>
    </message>
    <message>
        <source>Constants of the model</source>
        <translation>模型的常数</translation>
    </message>
</context>
<context>
    <name>vxInspector::TabContents</name>
    <message>
        <source>The project has no materials yet.</source>
        <translation>项目中还没有材料。</translation>
    </message>
    <message>
        <source>The selection contains no materials.</source>
        <translation>所选内容不包含材料。</translation>
    </message>
    <message>
        <source>Select a material in the project explorer, or open its editor.</source>
        <translation>在项目浏览器中选择一个材料，或打开其编辑器。</translation>
    </message>
    <message>
        <source>%1 materials are selected; this is the first. Compare shows them side by side.</source>
        <translation>已选择 %1 个材料；这是第一个。“比较”并排显示它们。</translation>
    </message>
    <message>
        <source>A project is selected. Select a material to see its values.</source>
        <translation>已选择一个项目。选择一个材料以查看其值。</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>In the project</source>
        <translation>项目中</translation>
    </message>
    <message>
        <source>Suppressed</source>
        <translation>已抑制</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>未就绪</translation>
    </message>
    <message>
        <source>With doubtful values</source>
        <translation>含可疑值</translation>
    </message>
    <message>
        <source>Only the first %1 of %2 materials are checked.</source>
        <translation>仅检查 %2 个材料中的前 %1 个。</translation>
    </message>
    <message>
        <source>Select a material to see its cards.</source>
        <translation>选择一个材料以查看其卡片。</translation>
    </message>
    <message>
        <source>Select two or more materials to compare them.</source>
        <translation>选择两个或更多材料进行比较。</translation>
    </message>
    <message>
        <source>Only the first %1 of %2 materials are shown.</source>
        <translation>仅显示 %2 个材料中的前 %1 个。</translation>
    </message>
    <message>
        <source>A project is selected. Select one or more materials to see their curves.</source>
        <translation>已选择一个项目。请选择一个或多个材料以查看其曲线。</translation>
    </message>
    <message>
        <source>Only the first %1 of %2 materials are compared.</source>
        <translation>仅比较 %2 个材料中的前 %1 个。</translation>
    </message>
</context>
<context>
    <name>vxInspector::TabsLibrary</name>
    <message>
        <source>the file %1 is missing</source>
        <translation>缺少文件 %1</translation>
    </message>
</context>
<context>
    <name>vxInspector::TestForm</name>
    <message>
        <source>The test data cannot be used</source>
        <translation>无法使用试验数据</translation>
    </message>
    <message>
        <source>&amp;Test:</source>
        <translation>试验(&amp;T)：</translation>
    </message>
    <message>
        <source>Hori&amp;zontal:</source>
        <translation>水平(&amp;Z)：</translation>
    </message>
    <message>
        <source>&amp;Vertical:</source>
        <translation>垂直(&amp;V)：</translation>
    </message>
    <message>
        <source>&amp;Stress:</source>
        <translation>应力(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Weight:</source>
        <translation>权重(&amp;W)：</translation>
    </message>
    <message>
        <source>Choose the test</source>
        <translation>选择试验</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Measured quantity</source>
        <translation>测量的量</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>The column of the file</source>
        <translation>文件中的列</translation>
    </message>
    <message>
        <source>What the column measures</source>
        <translation>该列测量的量</translation>
    </message>
    <message>
        <source>The unit of the column, such as MPa or %</source>
        <translation>该列的单位，例如 MPa 或 %</translation>
    </message>
    <message>
        <source> Pa</source>
        <translation> Pa</translation>
    </message>
    <message>
        <source>by its header</source>
        <translation>按标题</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>第 %1 列</translation>
    </message>
</context>
<context>
    <name>vxInspector::TestPanel</name>
    <message>
        <source>The test data cannot be used</source>
        <translation>无法使用试验数据</translation>
    </message>
    <message>
        <source>&amp;Load…</source>
        <translation>加载(&amp;L)…</translation>
    </message>
    <message>
        <source>Load test data from a file with columns of numbers</source>
        <translation>从含数字列的文件加载试验数据</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Take columns of numbers from the clipboard</source>
        <translation>从剪贴板获取数字列</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>试验</translation>
    </message>
    <message>
        <source>Load test data</source>
        <translation>加载试验数据</translation>
    </message>
    <message>
        <source>Test data (*.csv *.txt *.dat *.tsv);;All files (*)</source>
        <translation>试验数据 (*.csv *.txt *.dat *.tsv);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Test %1</source>
        <translation>试验 %1</translation>
    </message>
    <message>
        <source>Take the test out of this tab, or remove what the material keeps</source>
        <translation>将试验从该选项卡中取出，或移除材料保存的内容</translation>
    </message>
    <message>
        <source>Take the test out of this tab</source>
        <translation>将试验从该选项卡中取出</translation>
    </message>
    <message>
        <source>Test &quot;%1&quot; from this tab</source>
        <translation>从该选项卡移除试验“%1”</translation>
    </message>
    <message>
        <source>Test &quot;%1&quot; from the material &quot;%2&quot;</source>
        <translation>从材料“%2”移除试验“%1”</translation>
    </message>
    <message>
        <source>All tests and records of fits from the material &quot;%1&quot;</source>
        <translation>从材料“%1”移除所有试验和拟合记录</translation>
    </message>
    <message>
        <source>Remove test &quot;%1&quot; from &quot;%2&quot;</source>
        <translation>从“%2”移除试验“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not keep the test &quot;%2&quot; any more. Undo brings it back.</source>
        <translation>“%1”不再保存试验“%2”。撤销可将其恢复。</translation>
    </message>
    <message>
        <source>Remove tests and fits from &quot;%1&quot;</source>
        <translation>从“%1”移除试验和拟合</translation>
    </message>
    <message>
        <source>&quot;%1&quot; keeps no tests any more. Undo brings them back.</source>
        <translation>“%1”不再保存任何试验。撤销可将其恢复。</translation>
    </message>
</context>
<context>
    <name>vxInspector::ValueTable</name>
    <message>
        <source>cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>%1 (derived)</source>
        <translation>%1（导出）</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, with the changes in its editor that are not applied.</source>
        <translation>“%1”，包含其编辑器中未应用的更改。</translation>
    </message>
    <message>
        <source>It is suppressed.</source>
        <translation>它已被抑制。</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>量</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>It has no quantities yet.</source>
        <translation>它还没有任何量。</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>&quot;%1&quot;.</source>
        <translation>“%1”。</translation>
    </message>
    <message>
        <source>A switch is on if the material has it, whatever its number. Remove the quantity to switch it off.</source>
        <translation>只要材料具有该开关，它就是打开的，与其数值无关。要关闭它，请删除该量。</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>范围</translation>
    </message>
</context>
<context>
    <name>vxInspector::VolumeChoice</name>
    <message>
        <source>keep</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>remove: incompressible</source>
        <translation>移除：不可压缩</translation>
    </message>
    <message>
        <source>&amp;D1:</source>
        <translation>&amp;D1：</translation>
    </message>
    <message>
        <source>What happens to the compressibility of the material</source>
        <translation>如何处理材料的可压缩性</translation>
    </message>
    <message>
        <source>The ratio of the initial bulk modulus 2/D1 to the initial shear modulus of the fit</source>
        <translation>初始体积模量 2/D1 与拟合的初始剪切模量之比</translation>
    </message>
    <message>
        <source>Ratio of bulk to shear modulus</source>
        <translation>体积模量与剪切模量之比</translation>
    </message>
    <message>
        <source>The fit is incompressible, and the material has no D1.</source>
        <translation>拟合按不可压缩进行，且材料没有 D1。</translation>
    </message>
    <message>
        <source>The check of materials then reports that D1 is missing.</source>
        <translation>材料检查随后会报告缺少 D1。</translation>
    </message>
    <message>
        <source>none: incompressible</source>
        <translation>无：不可压缩</translation>
    </message>
    <message>
        <source>times the shear modulus</source>
        <translation>倍剪切模量</translation>
    </message>
    <message>
        <source>set the bulk modulus to</source>
        <translation>将体积模量设为</translation>
    </message>
</context>
<context>
    <name>vxMat::MaterialBase</name>
    <message>
        <source>Structural Steel</source>
        <translation>结构钢</translation>
    </message>
    <message>
        <source>Aluminum Alloy</source>
        <translation>铝合金</translation>
    </message>
    <message>
        <source>Stainless Steel</source>
        <translation>不锈钢</translation>
    </message>
    <message>
        <source>Concrete</source>
        <translation>混凝土</translation>
    </message>
    <message>
        <source>Copper Alloy</source>
        <translation>铜合金</translation>
    </message>
    <message>
        <source>Cast Iron</source>
        <translation>铸铁</translation>
    </message>
    <message>
        <source>Titanium Alloy</source>
        <translation>钛合金</translation>
    </message>
    <message>
        <source>Nonlinear Structural Steel</source>
        <translation>非线性结构钢</translation>
    </message>
    <message>
        <source>Nonlinear Stainless Steel</source>
        <translation>非线性不锈钢</translation>
    </message>
    <message>
        <source>Nonlinear Aluminum Alloy</source>
        <translation>非线性铝合金</translation>
    </message>
    <message>
        <source>Nonlinear Copper Alloy</source>
        <translation>非线性铜合金</translation>
    </message>
    <message>
        <source>Nonlinear Titanium Alloy</source>
        <translation>非线性钛合金</translation>
    </message>
    <message>
        <source>Plastic Example 1</source>
        <translation>塑性示例 1</translation>
    </message>
    <message>
        <source>Plastic Example 2</source>
        <translation>塑性示例 2</translation>
    </message>
    <message>
        <source>Viscoelastic Example</source>
        <translation>粘弹性示例</translation>
    </message>
    <message>
        <source>Creep Example</source>
        <translation>蠕变示例</translation>
    </message>
    <message>
        <source>Elastomer 1 (Neo-Hookean)</source>
        <translation>弹性体 1（Neo-Hookean）</translation>
    </message>
    <message>
        <source>Elastomer 2 (Mooney-Rivlin)</source>
        <translation>弹性体 2（Mooney-Rivlin）</translation>
    </message>
    <message>
        <source>Elastomer 3 (Arruda-Boyce)</source>
        <translation>弹性体 3（Arruda-Boyce）</translation>
    </message>
    <message>
        <source>Neoprene Rubber</source>
        <translation>氯丁橡胶</translation>
    </message>
    <message>
        <source>Air</source>
        <translation>空气</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>水</translation>
    </message>
    <message>
        <source>Electromangetic Material 1</source>
        <translation>电磁材料 1</translation>
    </message>
    <message>
        <source>Electromangetic Material 2</source>
        <translation>电磁材料 2</translation>
    </message>
    <message>
        <source>Acoustic Material 1</source>
        <translation>声学材料 1</translation>
    </message>
    <message>
        <source>Acoustic Material 2</source>
        <translation>声学材料 2</translation>
    </message>
</context>
<context>
    <name>vxMat::MaterialFinding</name>
    <message>
        <source>the %1 card lacks a value: &quot;%2&quot;</source>
        <translation>卡片“%1”缺少一个值：“%2”</translation>
    </message>
    <message>
        <source>the plasticity card cannot be complete: exchange documents carry no words and lists</source>
        <translation>塑性卡片不可能完整：交换文档不含单词和列表</translation>
    </message>
    <message>
        <source>the plasticity card cannot be complete: exchange documents carry no words and lists (%1)</source>
        <translation>塑性卡片不可能完整：交换文档不含单词和列表（%1）</translation>
    </message>
    <message>
        <source>no plasticity card is written for yield type &quot;%1&quot; with hardening type &quot;%2&quot;</source>
        <translation>对于屈服类型“%1”与硬化类型“%2”，不写出塑性卡片</translation>
    </message>
    <message>
        <source>the plasticity card has no hardening curve: the material has no numbers of &quot;%1&quot;</source>
        <translation>塑性卡片没有硬化曲线：材料没有“%1”的数值</translation>
    </message>
    <message>
        <source>the plasticity card leaves out numbers of &quot;%1&quot;, which the solver does not use with bilinear hardening: %2</source>
        <translation>塑性卡片省略了“%1”的数值，求解器在双线性硬化时不使用它们：%2</translation>
    </message>
    <message>
        <source>the plasticity card leaves out numbers of &quot;%1&quot;, which the solver does not use with yield type &quot;%3&quot;: %2</source>
        <translation>塑性卡片省略了“%1”的数值，求解器在屈服类型“%3”时不使用它们：%2</translation>
    </message>
    <message>
        <source>the plasticity card leaves out numbers of &quot;%1&quot;, which have no plastic strain: %2</source>
        <translation>塑性卡片省略了“%1”的数值，它们没有对应的塑性应变：%2</translation>
    </message>
    <message>
        <source>the plasticity card leaves out numbers of &quot;%1&quot;, which have no yield stress: %2</source>
        <translation>塑性卡片省略了“%1”的数值，它们没有对应的屈服应力：%2</translation>
    </message>
    <message>
        <source>no card is written for &quot;%1&quot;: another model of the material takes precedence</source>
        <translation>不为“%1”写出卡片：材料的另一个模型优先</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a number that is not finite, which no solver reads</source>
        <translation>“%1”含有非有限的数，没有求解器能够读取</translation>
    </message>
    <message>
        <source>The material has no properties.</source>
        <translation>该材料没有属性。</translation>
    </message>
    <message>
        <source>The catalogue has no quantity %1 (&quot;%2&quot;); the editor does not show it, and applying changes there removes it.</source>
        <translation>目录中没有量 %1（“%2”）；编辑器不显示它，在那里应用更改会将其删除。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; a finite number is needed.</source>
        <translation>“%1”为 %2；需要一个有限的数。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no number.</source>
        <translation>“%1”不包含数。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; it must be greater than 0.</source>
        <translation>“%1”为 %2；它必须大于 0。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; it must be from 0.001 to 0.499.</source>
        <translation>“%1”为 %2；它必须在 0.001 到 0.499 之间。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;; it must be one of %3.</source>
        <translation>“%1”为“%2”；它必须是 %3 之一。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has %2 numbers and &quot;%3&quot; has %4; they form pairs, and numbers without a partner have no effect.</source>
        <translation>“%1”有 %2 个数，“%3”有 %4 个；它们成对出现，没有对应项的数不起作用。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; exclude each other; remove one of them.</source>
        <translation>“%1”和“%2”互相排斥；请删除其中之一。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs &quot;%2&quot;, which the material does not have.</source>
        <translation>“%1”需要“%2”，而该材料没有它。</translation>
    </message>
</context>
<context>
    <name>vxMat::PropertyDescription</name>
    <message>
        <source>Mass density</source>
        <translation>质量密度</translation>
    </message>
    <message>
        <source>Between [0.001, 0.499]</source>
        <translation>介于 [0.001, 0.499] 之间</translation>
    </message>
    <message>
        <source>Mutual exclusion to &quot;Isotropic elasticity&quot;</source>
        <translation>与“各向同性弹性”互斥</translation>
    </message>
    <message>
        <source>Mutually exclusive to hyper-elastic properties</source>
        <translation>与超弹性属性互斥</translation>
    </message>
    <message>
        <source>Input &quot;Mises&quot;, &quot;Mohr-Coulomb&quot;, or &quot;Drucker-Prager&quot;</source>
        <translation>输入“Mises”、“Mohr-Coulomb”或“Drucker-Prager”</translation>
    </message>
    <message>
        <source>Input &quot;Bilinear&quot;, &quot;Multilinear&quot;, &quot;Swift&quot;, &quot;Ramberg-Osgood&quot;, &quot;Kinematic&quot;, or &quot;Combined&quot;</source>
        <translation>输入“Bilinear”、“Multilinear”、“Swift”、“Ramberg-Osgood”、“Kinematic”或“Combined”</translation>
    </message>
    <message>
        <source>Vector; values are separated by comma</source>
        <translation>向量；数值以逗号分隔</translation>
    </message>
</context>
<context>
    <name>vxMat::PropertyName</name>
    <message>
        <source>Density</source>
        <translation>密度</translation>
    </message>
    <message>
        <source>Young&apos;s modulus</source>
        <translation>杨氏模量</translation>
    </message>
    <message>
        <source>Poisson&apos;s ratio</source>
        <translation>泊松比</translation>
    </message>
    <message>
        <source>Dynamic viscosity</source>
        <translation>动力粘度</translation>
    </message>
    <message>
        <source>Initial Shear Modulus Mu</source>
        <translation>初始剪切模量 Mu</translation>
    </message>
    <message>
        <source>Incompressibility Parameter D1</source>
        <translation>不可压缩参数 D1</translation>
    </message>
    <message>
        <source>Material Constant C10</source>
        <translation>材料常数 C10</translation>
    </message>
    <message>
        <source>Material Constant C01</source>
        <translation>材料常数 C01</translation>
    </message>
    <message>
        <source>Neo-Hookean</source>
        <translation>Neo-Hookean 模型</translation>
    </message>
    <message>
        <source>Mooney-Rivlin</source>
        <translation>Mooney-Rivlin 模型</translation>
    </message>
    <message>
        <source>Arruda-Boyce</source>
        <translation>Arruda-Boyce 模型</translation>
    </message>
    <message>
        <source>Isotropic elasticity</source>
        <translation>各向同性弹性</translation>
    </message>
    <message>
        <source>Plasticity</source>
        <translation>塑性</translation>
    </message>
    <message>
        <source>Yield type</source>
        <translation>屈服类型</translation>
    </message>
    <message>
        <source>Plastic viscosity</source>
        <translation>塑性粘度</translation>
    </message>
    <message>
        <source>Internal frictional angle</source>
        <translation>内摩擦角</translation>
    </message>
    <message>
        <source>Hardening factor</source>
        <translation>硬化系数</translation>
    </message>
    <message>
        <source>Hardening type</source>
        <translation>硬化类型</translation>
    </message>
    <message>
        <source>Yield stress</source>
        <translation>屈服应力</translation>
    </message>
    <message>
        <source>Plastic strain</source>
        <translation>塑性应变</translation>
    </message>
    <message>
        <source>Initial yield stress</source>
        <translation>初始屈服应力</translation>
    </message>
    <message>
        <source>Visco-elasticity</source>
        <translation>粘弹性</translation>
    </message>
    <message>
        <source>Shear relaxation modulus</source>
        <translation>剪切松弛模量</translation>
    </message>
    <message>
        <source>Relaxation time</source>
        <translation>松弛时间</translation>
    </message>
    <message>
        <source>Creep</source>
        <translation>蠕变</translation>
    </message>
    <message>
        <source>Creep Modulus A</source>
        <translation>蠕变模量 A</translation>
    </message>
    <message>
        <source>Creep Modulus N</source>
        <translation>蠕变模量 N</translation>
    </message>
    <message>
        <source>Creep Modulus M</source>
        <translation>蠕变模量 M</translation>
    </message>
    <message>
        <source>Limiting Network Stretch</source>
        <translation>极限网络拉伸</translation>
    </message>
    <message>
        <source>Material Constant C11</source>
        <translation>材料常数 C11</translation>
    </message>
    <message>
        <source>Specific heat</source>
        <translation>比热容</translation>
    </message>
    <message>
        <source>Thermal conductivity</source>
        <translation>导热系数</translation>
    </message>
    <message>
        <source>Electrical conductivity</source>
        <translation>电导率</translation>
    </message>
    <message>
        <source>Relative permittivity</source>
        <translation>相对介电常数</translation>
    </message>
    <message>
        <source>Relative permeability</source>
        <translation>相对磁导率</translation>
    </message>
    <message>
        <source>Speed of sound</source>
        <translation>声速</translation>
    </message>
</context>
<context>
    <name>vxMaterial</name>
    <message>
        <source>The materials module could not register its projects</source>
        <translation>材料模块无法注册其项目</translation>
    </message>
    <message>
        <source>The materials module could not register its user interface</source>
        <translation>材料模块无法注册其用户界面</translation>
    </message>
</context>
<context>
    <name>vxMsg</name>
    <message>
        <source>The request %1 is not known; nothing was done.</source>
        <translation>请求 %1 未知；未执行任何操作。</translation>
    </message>
    <message>
        <source>There is no project &quot;%1&quot;; nothing was done.</source>
        <translation>没有项目“%1”；未执行任何操作。</translation>
    </message>
    <message>
        <source>The request %1 takes one name; nothing was done.</source>
        <translation>请求 %1 需要一个名称；未执行任何操作。</translation>
    </message>
    <message>
        <source>New project &quot;%1&quot;</source>
        <translation>新建项目“%1”</translation>
    </message>
    <message>
        <source>Close project &quot;%1&quot;</source>
        <translation>关闭项目“%1”</translation>
    </message>
    <message>
        <source>Add &quot;%1&quot;</source>
        <translation>添加“%1”</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>删除“%1”</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; has no object &quot;%2&quot;; nothing was done.</source>
        <translation>项目“%1”中没有对象“%2”；未执行任何操作。</translation>
    </message>
    <message>
        <source>The request %1 cannot be registered for the class &quot;%2&quot;: it has another meaning.</source>
        <translation>无法为类“%2”注册请求 %1：它已有其他含义。</translation>
    </message>
    <message>
        <source>A request failed</source>
        <translation>请求失败</translation>
    </message>
    <message>
        <source>An undo or redo failed</source>
        <translation>撤销或重做失败</translation>
    </message>
    <message>
        <source>There is no property &quot;%1&quot;; nothing was changed.</source>
        <translation>没有属性“%1”；未做任何更改。</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; is read-only; nothing was changed.</source>
        <translation>属性“%1”是只读的；未做任何更改。</translation>
    </message>
    <message>
        <source>The label must not be empty; nothing was changed.</source>
        <translation>标签不得为空；未做任何更改。</translation>
    </message>
    <message>
        <source>An object failed when its property &quot;%1&quot; was changed</source>
        <translation>更改属性“%1”时对象失败</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; cannot be &quot;%2&quot;; nothing was changed.</source>
        <translation>属性“%1”不能为“%2”；未做任何更改。</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is being closed already; nothing was done.</source>
        <translation>项目“%1”正在关闭；未执行任何操作。</translation>
    </message>
    <message>
        <source>Change &quot;%1&quot;</source>
        <translation>更改“%1”</translation>
    </message>
    <message>
        <source>Suppress &quot;%1&quot;</source>
        <translation>抑制“%1”</translation>
    </message>
    <message>
        <source>Unsuppress &quot;%1&quot;</source>
        <translation>取消抑制“%1”</translation>
    </message>
    <message>
        <source>Hand over &quot;%1&quot;</source>
        <translation>移交“%1”</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; cannot be handed over</source>
        <translation>无法移交项目“%1”</translation>
    </message>
    <message>
        <source>Requests are refused during undo and redo; nothing was done.</source>
        <translation>撤销或重做期间不接受请求；未执行任何操作。</translation>
    </message>
    <message>
        <source>A listener closed the project &quot;%1&quot; before the request was carried out.</source>
        <translation>在执行请求之前，监听器已关闭项目“%1”。</translation>
    </message>
    <message>
        <source>The name of a project must not be empty; nothing was changed.</source>
        <translation>项目名称不能为空；未做任何更改。</translation>
    </message>
    <message>
        <source>Another open project has the name &quot;%1&quot;; nothing was changed.</source>
        <translation>另一个打开的项目已使用名称“%1”；未做任何更改。</translation>
    </message>
    <message>
        <source>Rename &quot;%1&quot;</source>
        <translation>重命名“%1”</translation>
    </message>
    <message>
        <source>The name of a setting must not be empty; nothing was changed.</source>
        <translation>设置的名称不能为空；未做任何更改。</translation>
    </message>
    <message>
        <source>Reset &quot;%1&quot;</source>
        <translation>重置“%1”</translation>
    </message>
    <message>
        <source>Change &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>将“%1”更改为“%2”</translation>
    </message>
    <message>
        <source>Delete %1 objects</source>
        <translation>删除 %1 个对象</translation>
    </message>
    <message>
        <source>Change &quot;%1&quot; of &quot;%2&quot;</source>
        <translation>更改“%2”的“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in no project; nothing was changed.</source>
        <translation>“%1”不在任何项目中；未作任何更改。</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; of &quot;%2&quot;</source>
        <translation>移除“%2”的“%1”</translation>
    </message>
</context>
<context>
    <name>vxPlot</name>
    <message>
        <source>storage and loss modulus</source>
        <translation>储能模量和损耗模量</translation>
    </message>
    <message>
        <source>uniaxial</source>
        <translation>单轴</translation>
    </message>
    <message>
        <source>equibiaxial</source>
        <translation>等双轴</translation>
    </message>
    <message>
        <source>planar</source>
        <translation>平面</translation>
    </message>
    <message>
        <source>simple shear</source>
        <translation>简单剪切</translation>
    </message>
    <message>
        <source>volumetric</source>
        <translation>体积</translation>
    </message>
    <message>
        <source>hardening</source>
        <translation>硬化</translation>
    </message>
    <message>
        <source>tensile test</source>
        <translation>拉伸试验</translation>
    </message>
    <message>
        <source>yield surface</source>
        <translation>屈服面</translation>
    </message>
    <message>
        <source>creep</source>
        <translation>蠕变</translation>
    </message>
    <message>
        <source>creep rate</source>
        <translation>蠕变率</translation>
    </message>
    <message>
        <source>relaxation</source>
        <translation>松弛</translation>
    </message>
    <message>
        <source>shear creep</source>
        <translation>剪切蠕变</translation>
    </message>
    <message>
        <source>storage and loss</source>
        <translation>储能与损耗</translation>
    </message>
    <message>
        <source>%1 / cohesion</source>
        <translation>%1 / 黏聚力</translation>
    </message>
    <message>
        <source>%1 × shear modulus</source>
        <translation>%1 × 剪切模量</translation>
    </message>
    <message>
        <source>%1 / shear modulus</source>
        <translation>%1 / 剪切模量</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%2 时的%1</translation>
    </message>
    <message>
        <source>unstable</source>
        <translation>不稳定</translation>
    </message>
    <message>
        <source>The legend shows the first %1 of %2 curves.</source>
        <translation>图例显示 %2 条曲线中的前 %1 条。</translation>
    </message>
    <message>
        <source>Points that are not greater than 0 and missing on a logarithmic axis: %1.</source>
        <translation>因不大于 0 而未显示在对数轴上的点数：%1。</translation>
    </message>
    <message>
        <source>%1: unstable</source>
        <translation>%1：不稳定</translation>
    </message>
    <message>
        <source>%1 (not measured)</source>
        <translation>%1（未测量）</translation>
    </message>
</context>
<context>
    <name>vxUnits::Message</name>
    <message>
        <source>Did you mean &quot;%1&quot;?</source>
        <translation>您是否要输入“%1”？</translation>
    </message>
    <message>
        <source>Nothing was typed; a number is needed.</source>
        <translation>没有输入任何内容；需要一个数字。</translation>
    </message>
    <message>
        <source>The text is not valid UTF-8.</source>
        <translation>文本不是有效的 UTF-8。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not begin with a number.</source>
        <translation>“%1”不以数字开头。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a finite number.</source>
        <translation>“%1”不是有限的数。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a hexadecimal number; write it in decimals.</source>
        <translation>“%1”是十六进制数；请用十进制书写。</translation>
    </message>
    <message>
        <source>The exponent in &quot;%1&quot; has no digits.</source>
        <translation>“%1”中的指数没有数字。</translation>
    </message>
    <message>
        <source>The exponent in &quot;%1&quot; is not a whole number.</source>
        <translation>“%1”中的指数不是整数。</translation>
    </message>
    <message>
        <source>The exponent in &quot;%1&quot; must be written with the letter e.</source>
        <translation>“%1”中的指数必须用字母 e 书写。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than one decimal point.</source>
        <translation>“%1”中的小数点多于一个。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a decimal comma; the decimal sign is a point.</source>
        <translation>“%1”使用了小数逗号；小数符号应为点。</translation>
    </message>
    <message>
        <source>The comma in &quot;%1&quot; may separate decimals or thousands; write %2 or %3.</source>
        <translation>“%1”中的逗号可能分隔小数或千位；请写 %2 或 %3。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has digits in groups; write the number without separators.</source>
        <translation>“%1”中的数字被分组；请不带分隔符书写。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than one number; one number is needed.</source>
        <translation>“%1”包含多个数字；只需要一个数字。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is outside the range of numbers, 1e-308 to 1e308.</source>
        <translation>“%1”超出数的范围 1e-308 至 1e308。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains the character %2, which no number and no unit has.</source>
        <translation>“%1”包含字符 %2，任何数字和单位都没有该字符。</translation>
    </message>
    <message>
        <source>A unit is missing in &quot;%1&quot; after &quot;%2&quot;.</source>
        <translation>“%1”中“%2”之后缺少单位。</translation>
    </message>
    <message>
        <source>A power is missing in the unit &quot;%1&quot;.</source>
        <translation>单位“%1”中缺少幂。</translation>
    </message>
    <message>
        <source>A power in the unit &quot;%1&quot; is not between -50 and 50.</source>
        <translation>单位“%1”中的幂不在 -50 与 50 之间。</translation>
    </message>
    <message>
        <source>A parenthesis in the unit &quot;%1&quot; is not closed.</source>
        <translation>单位“%1”中的括号没有闭合。</translation>
    </message>
    <message>
        <source>A parenthesis in the unit &quot;%1&quot; is closed but not opened.</source>
        <translation>单位“%1”中的括号已闭合但没有打开。</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; has more than 40 parts.</source>
        <translation>单位“%1”的组成部分多于 40 个。</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; has more than 20 parentheses inside each other.</source>
        <translation>单位“%1”的嵌套括号多于 20 层。</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; is not known.</source>
        <translation>未知的单位“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than one meaning; write %2.</source>
        <translation>“%1”有多种含义；请写 %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; measures %2; a unit such as %3 is needed.</source>
        <translation>“%1”表示%2；需要如 %3 的单位。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; measures %2; %4 needs a unit such as %3.</source>
        <translation>“%1”表示%2；%4 需要如 %3 的单位。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; measures %2; %3 is a pure number.</source>
        <translation>“%1”表示%2；%3 是无量纲数。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; measures %2; %4 is its reciprocal and needs a unit such as %3.</source>
        <translation>“%1”表示%2；%4 是其倒数，需要如 %3 的单位。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a temperature; a difference of temperatures is needed.</source>
        <translation>“%1”是温度；需要的是温度差。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is below the absolute zero of temperature.</source>
        <translation>“%1”低于绝对零度。</translation>
    </message>
    <message>
        <source>%1 is a word; it takes no number.</source>
        <translation>%1 是词语，不接受数字。</translation>
    </message>
    <message>
        <source>%1 is a switch; it takes no number.</source>
        <translation>%1 是开关，不接受数字。</translation>
    </message>
    <message>
        <source>No quantity has the id %1.</source>
        <translation>没有编号为 %1 的量。</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; is not built in, and the database of units cannot be read: %2. Install the data of UDUNITS-2, or have the environment variable UDUNITS2_XML_PATH name the file udunits2.xml.</source>
        <translation>单位“%1”不是内置单位，且无法读取单位数据库：%2。请安装 UDUNITS-2 的数据，或用环境变量 UDUNITS2_XML_PATH 指定文件 udunits2.xml。</translation>
    </message>
    <message>
        <source>Number %1 of the list is missing.</source>
        <translation>列表缺少第 %1 个数字。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no unit. Give one unit after the last number, or a unit after each number.</source>
        <translation>“%1”没有单位。请在最后一个数字之后给出单位，或在每个数字之后给出单位。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; looks like decimals after a comma. The decimal sign is a point; commas separate the numbers of a list.</source>
        <translation>“%1”看起来像逗号后的小数。小数符号为点；逗号分隔列表中的数字。</translation>
    </message>
    <message>
        <source>A unit system needs a name (%1) or its base units (%2).</source>
        <translation>单位制需要名称 (%1) 或其基本单位 (%2)。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not begin with one of length, mass, time, temperature and current.</source>
        <translation>“%1”不以 length、mass、time、temperature 或 current 开头。</translation>
    </message>
    <message>
        <source>The unit system gives the unit of %1 twice.</source>
        <translation>单位制两次给出 %1 的单位。</translation>
    </message>
    <message>
        <source>The unit system gives no unit of %1.</source>
        <translation>单位制没有给出 %1 的单位。</translation>
    </message>
    <message>
        <source>cal is the International Table calorie, 4.1868 J; cal_th is 4.184 J.</source>
        <translation>cal 是国际蒸汽表卡，4.1868 J；cal_th 为 4.184 J。</translation>
    </message>
    <message>
        <source>Btu is the International Table unit, 1055.05585262 J; Btu_th is 1054.35026 J.</source>
        <translation>Btu 是国际蒸汽表单位，1055.05585262 J；Btu_th 为 1054.35026 J。</translation>
    </message>
    <message>
        <source>The year has 365.25 days.</source>
        <translation>一年为 365.25 天。</translation>
    </message>
    <message>
        <source>oz is the avoirdupois ounce, 1/16 lb; the ounce of force is ozf.</source>
        <translation>oz 是常衡盎司，1/16 lb；盎司力为 ozf。</translation>
    </message>
    <message>
        <source>The gallon is the gallon of the United States, 231 in^3.</source>
        <translation>加仑为美制加仑，231 in^3。</translation>
    </message>
    <message>
        <source>hp is 550 ft lbf/s; the metric horsepower is PS.</source>
        <translation>hp 为 550 ft lbf/s；公制马力为 PS。</translation>
    </message>
    <message>
        <source>100 %IACS is 58 MS/m (IEC 60028).</source>
        <translation>100 %IACS 为 58 MS/m (IEC 60028)。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is taken from the database of UDUNITS, with as many digits as it has there.</source>
        <translation>“%1”取自 UDUNITS 数据库，位数与其中相同。</translation>
    </message>
    <message>
        <source>%1 is not a finite number.</source>
        <translation>%1 不是有限的数。</translation>
    </message>
    <message>
        <source>%1 = %2: the value must be above 0.</source>
        <translation>%1 = %2：值必须大于 0。</translation>
    </message>
    <message>
        <source>%1 = %2: the value must not be negative.</source>
        <translation>%1 = %2：值不能为负。</translation>
    </message>
    <message>
        <source>%1 = %2 is below what known materials have, %5 (%7) to %6 (%8).</source>
        <translation>%1 = %2 低于已知材料的值：%5 (%7) 至 %6 (%8)。</translation>
    </message>
    <message>
        <source>%1 = %2 is above what known materials have, %5 (%7) to %6 (%8).</source>
        <translation>%1 = %2 高于已知材料的值：%5 (%7) 至 %6 (%8)。</translation>
    </message>
    <message>
        <source>%1 = %2 is outside -1 to 0.5; such a solid would release energy by itself.</source>
        <translation>%1 = %2 超出 -1 至 0.5；这样的固体会自行释放能量。</translation>
    </message>
    <message>
        <source>%1 = %2 is so near 0.5 that elements lock; take a hyperelastic model, or at most %6.</source>
        <translation>%1 = %2 太接近 0.5，单元会锁死；请使用超弹性模型，或最多取 %6。</translation>
    </message>
    <message>
        <source>%1 = %2 with %3: only rubber and gels are above %6.</source>
        <translation>%1 = %2，且 %3：只有橡胶和凝胶高于 %6。</translation>
    </message>
    <message>
        <source>%1 = %2 with %3 gives a wave speed of %4; known solids of such a density have %5 to %6.</source>
        <translation>%1 = %2，且 %3，得到波速 %4；具有此密度的已知固体为 %5 至 %6。</translation>
    </message>
    <message>
        <source>%1 = %2 with %3: known solids so light have at most %6.</source>
        <translation>%1 = %2，且 %3：如此轻的已知固体最多为 %6。</translation>
    </message>
    <message>
        <source>%1 = %2 with %3 gives a heat capacity of %4; known matter has %5 to %6.</source>
        <translation>%1 = %2，且 %3，得到热容 %4；已知物质为 %5 至 %6。</translation>
    </message>
    <message>
        <source>%1 = %2 with %3 gives a thermal diffusivity of %4; known materials have %5 to %6.</source>
        <translation>%1 = %2，且 %3，得到热扩散率 %4；已知材料为 %5 至 %6。</translation>
    </message>
    <message>
        <source>%1 = %2 with %3 gives a Lorenz number of %4; known metals have %5 to %6.</source>
        <translation>%1 = %2，且 %3，得到洛伦兹数 %4；已知金属为 %5 至 %6。</translation>
    </message>
    <message>
        <source>%1 = %2 with %3: the moduli give speeds from %5 to %6.</source>
        <translation>%1 = %2，且 %3：由模量得到的速度为 %5 至 %6。</translation>
    </message>
    <message>
        <source>%1 = %2 with %3 gives a bulk modulus of %4; known fluids of such a density have %5 to %6.</source>
        <translation>%1 = %2，且 %3，得到体积模量 %4；具有此密度的已知流体为 %5 至 %6。</translation>
    </message>
    <message>
        <source>%1 = %2 with %3: heat and conductivity are those of water, which has %5 to %6.</source>
        <translation>%1 = %2，且 %3：热容和导热率与水相同，水为 %5 至 %6。</translation>
    </message>
    <message>
        <source>%1 = %2 with %3: the initial modulus of the hyperelastic model is %4 times Young&apos;s modulus; %5 to %6 times is sensible.</source>
        <translation>%1 = %2，且 %3：超弹性模型的初始模量是杨氏模量的 %4 倍；合理的为 %5 至 %6 倍。</translation>
    </message>
    <message>
        <source>%1 = %2 with %3: the initial bulk modulus is %4 times the shear modulus; known rubbers and gels have %5 to %6 times.</source>
        <translation>%1 = %2，且 %3：初始体积模量是剪切模量的 %4 倍；已知橡胶和凝胶为 %5 至 %6 倍。</translation>
    </message>
    <message>
        <source>%1 = %2 with %3: the initial shear modulus is %4; it must be above 0.</source>
        <translation>%1 = %2，且 %3：初始剪切模量为 %4；必须大于 0。</translation>
    </message>
    <message>
        <source>%1 has %4 numbers and %3; each strain needs one stress.</source>
        <translation>%1 有 %4 个数字，且 %3；每个应变需要一个应力。</translation>
    </message>
    <message>
        <source>%1 begins with %4; the first plastic strain is 0, at the first yield.</source>
        <translation>%1 从 %4 开始；第一个塑性应变为 0，即初始屈服。</translation>
    </message>
    <message>
        <source>%1 does not rise from %5 to %4.</source>
        <translation>%1 从 %5 到 %4 没有增大。</translation>
    </message>
    <message>
        <source>%1 falls below %5 to %4; hardening does not fall.</source>
        <translation>%1 从 %5 降至 %4；硬化不会下降。</translation>
    </message>
    <message>
        <source>%1 = %2 with %3 gives a strain rate of %4 at a thousandth of the modulus; %5 to %6 is within reach.</source>
        <translation>%1 = %2，且 %3，在模量的千分之一处得到应变率 %4；可达到的为 %5 至 %6。</translation>
    </message>
    <message>
        <source>%1 = %2 does not fit the other values.</source>
        <translation>%1 = %2 与其他值不相符。</translation>
    </message>
    <message>
        <source>%1 is usual for %2: multiply by %3</source>
        <translation>%1 对%2是常见的：乘以 %3</translation>
    </message>
    <message>
        <source>%1 would not be doubted: multiply by %2</source>
        <translation>%1 不会有疑问：乘以 %2</translation>
    </message>
    <message>
        <source>%1 is usual for the resistivity of %2: take the reciprocal</source>
        <translation>%1 对%2的电阻率是常见的：取倒数</translation>
    </message>
    <message>
        <source>The stresses look like %1: convert them</source>
        <translation>应力看起来以 %1 为单位：进行换算</translation>
    </message>
    <message>
        <source>The values look like %1: convert the material</source>
        <translation>数值看起来属于 %1：换算该材料</translation>
    </message>
    <message>
        <source>A quotation mark is not closed.</source>
        <translation>引号没有闭合。</translation>
    </message>
    <message>
        <source>A condition is missing before &quot;%1&quot;.</source>
        <translation>“%1”之前缺少条件。</translation>
    </message>
    <message>
        <source>A condition is missing after &quot;%1&quot;.</source>
        <translation>“%1”之后缺少条件。</translation>
    </message>
    <message>
        <source>A parenthesis is not closed.</source>
        <translation>括号没有闭合。</translation>
    </message>
    <message>
        <source>A parenthesis is closed but not opened.</source>
        <translation>有右括号，但没有左括号。</translation>
    </message>
    <message>
        <source>A quantity is missing before &quot;%1&quot;.</source>
        <translation>“%1”之前缺少物理量。</translation>
    </message>
    <message>
        <source>A quantity is missing after &quot;%1&quot;.</source>
        <translation>“%1”之后缺少物理量。</translation>
    </message>
    <message>
        <source>No quantity is called &quot;%1&quot;.</source>
        <translation>没有名为“%1”的物理量。</translation>
    </message>
    <message>
        <source>A value is missing after &quot;%1&quot;.</source>
        <translation>“%1”之后缺少数值。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; follows a comparison; write &quot;and&quot; between two comparisons.</source>
        <translation>“%1”跟在一个比较之后；请在两个比较之间写“and”。</translation>
    </message>
    <message>
        <source>Write the quantity before the value.</source>
        <translation>请把物理量写在数值之前。</translation>
    </message>
    <message>
        <source>%1 is a word; only &quot;=&quot; and &quot;!=&quot; compare it.</source>
        <translation>%1 的值是单词；只能用“=”和“!=”比较。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2, which is one of %3.</source>
        <translation>“%1”不是 %2 的值，可用的值为：%3。</translation>
    </message>
    <message>
        <source>%1 is a switch and has no value; write &quot;has&quot;.</source>
        <translation>%1 是开关，没有数值；请写“has”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a range; only &quot;=&quot; and &quot;!=&quot; compare it.</source>
        <translation>“%1”是一个范围；只能用“=”和“!=”比较。</translation>
    </message>
    <message>
        <source>The range &quot;%1&quot; needs a number on each side of &quot;..&quot;.</source>
        <translation>范围“%1”的“..”两边都需要数字。</translation>
    </message>
    <message>
        <source>The unit of %1 depends on other values of each material; only numbers in SI compare it.</source>
        <translation>%1 的单位取决于每种材料的其他值；只能用 SI 单位的数值比较。</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; must not contain the number %2.</source>
        <translation>单位“%1”中不得包含数字 %2。</translation>
    </message>
    <message>
        <source>A power in the unit &quot;%1&quot; has an exponent; write the power as a plain number.</source>
        <translation>单位“%1”中的幂带有指数；请将幂写成普通数字。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a difference of temperatures; a temperature is needed.</source>
        <translation>“%1”是温度差；需要温度。</translation>
    </message>
    <message>
        <source>The comma in &quot;%1&quot; may be a decimal sign or separate two numbers; write &quot;%2&quot; or &quot;%3&quot;.</source>
        <translation>“%1”中的逗号可能是小数点，也可能分隔两个数字；请写“%2”或“%3”。</translation>
    </message>
    <message>
        <source>The stresses look like %1, and the density like %2: convert them</source>
        <translation>应力看起来是 %1，密度看起来是 %2：请换算</translation>
    </message>
    <message>
        <source>The unit of %1 depends on %2 and %3, which are not given; give them first.</source>
        <translation>%1 的单位取决于 %2 和 %3，但它们未给出；请先给出它们。</translation>
    </message>
    <message>
        <source>The unit of %1 depends on %2, which is not given; give it first.</source>
        <translation>%1 的单位取决于 %2，但它未给出；请先给出它。</translation>
    </message>
    <message>
        <source>The unit of %1 depends on %2, which is not between -50 and 50; convert the number to SI units and write it without a unit.</source>
        <translation>%1 的单位取决于 %2，但该值不在 -50 到 50 之间；请将数字换算为 SI 单位，并且不带单位输入。</translation>
    </message>
    <message>
        <source>The stresses look like %1, the density like %2, and the specific heat like %3: convert them</source>
        <translation>应力看似采用 %1，密度看似采用 %2，比热看似采用 %3：请换算它们</translation>
    </message>
    <message>
        <source>More than %1 parentheses and &quot;not&quot; are inside each other.</source>
        <translation>嵌套的括号和“not”超过 %1 层。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a known unit; write &quot;and&quot; before another condition.</source>
        <translation>“%1”不是已知的单位；请在另一个条件前写上“and”。</translation>
    </message>
    <message>
        <source>Searched in labels; did you mean &quot;%1&quot;?</source>
        <translation>已在标签中搜索；您是想输入“%1”吗？</translation>
    </message>
    <message>
        <source>%1 = %2 with %3 gives a ratio of yield stress to modulus of %4; known solids have %5 to %6.</source>
        <translation>%1 = %2 与 %3 给出的屈服应力与模量之比为 %4；已知固体为 %5 至 %6。</translation>
    </message>
    <message>
        <source>%1 = %2 with %3 gives a ratio of hardening to modulus of %4; known metals have %5 to %6, or 0.</source>
        <translation>%1 = %2 与 %3 给出的硬化模量与模量之比为 %4；已知金属为 %5 至 %6，或 0。</translation>
    </message>
    <message>
        <source>The numbers of the stresses look like %1, but are in Pa: convert them</source>
        <translation>应力的数值像是 %1，但单位是 Pa：请换算</translation>
    </message>
    <message>
        <source>The numbers of the stresses look like %1, that of the density like %2, but they are in SI: convert them</source>
        <translation>应力的数值像是 %1，密度的数值像是 %2，但单位是 SI：请换算</translation>
    </message>
    <message>
        <source>The numbers of the stresses look like %1, that of the density like %2, that of the specific heat like %3, but they are in SI: convert them</source>
        <translation>应力的数值像是 %1，密度的数值像是 %2，比热容的数值像是 %3，但单位是 SI：请换算</translation>
    </message>
    <message>
        <source>The numbers look like %1, but are in SI: convert the material</source>
        <translation>数值像是 %1，但单位是 SI：请换算该材料</translation>
    </message>
    <message>
        <source>The unit of %1 depends on %2, which cannot be read; correct it first.</source>
        <translation>%1 的单位取决于 %2，而后者无法读取；请先更正。</translation>
    </message>
    <message>
        <source>The unit of %1 is missing; a unit such as %2 is needed.</source>
        <translation>缺少 %1 的单位；需要 %2 之类的单位。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; begins with a number; %2 needs a unit alone, such as %3.</source>
        <translation>“%1”以数字开头；%2 只需要单位，例如 %3。</translation>
    </message>
    <message>
        <source>carried</source>
        <translation>已写入</translation>
    </message>
    <message>
        <source>converted</source>
        <translation>已换算</translation>
    </message>
    <message>
        <source>approximated</source>
        <translation>近似</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>丢失</translation>
    </message>
    <message>
        <source>The deck is in the unit system %1.</source>
        <translation>输入文件采用单位制 %1。</translation>
    </message>
    <message>
        <source>The deck is in %1, because the solver would misread numbers in %2.</source>
        <translation>输入文件采用 %1，因为求解器会误读以 %2 表示的数字。</translation>
    </message>
    <message>
        <source>renamed &quot;%1&quot;, because the format does not take the name or has it already</source>
        <translation>已改名为“%1”，因为该格式不接受此名称或已有此名称</translation>
    </message>
    <message>
        <source>has the number %1 instead of %2</source>
        <translation>编号为 %1，而不是 %2</translation>
    </message>
    <message>
        <source>in %1 instead of %2</source>
        <translation>以 %1 代替 %2</translation>
    </message>
    <message>
        <source>as two points of the curve, up to a plastic strain of %1</source>
        <translation>写作曲线上的两点，至塑性应变 %1</translation>
    </message>
    <message>
        <source>the initial yield stress is the point at plastic strain 0</source>
        <translation>初始屈服应力是塑性应变为 0 的点</translation>
    </message>
    <message>
        <source>the solver has no incompressible solid; the bulk modulus is %1 times the initial shear modulus</source>
        <translation>求解器没有不可压缩固体；体积模量为初始剪切模量的 %1 倍</translation>
    </message>
    <message>
        <source>as the points of the curve</source>
        <translation>写作曲线上的点</translation>
    </message>
    <message>
        <source>the number is not finite in the unit system of the deck</source>
        <translation>在输入文件的单位制中该数字不是有限值</translation>
    </message>
    <message>
        <source>the catalogue does not have the quantity</source>
        <translation>目录中没有该量</translation>
    </message>
    <message>
        <source>the card needs %1 too</source>
        <translation>卡片还需要：%1</translation>
    </message>
    <message>
        <source>the model needs linear elasticity</source>
        <translation>该模型需要线弹性</translation>
    </message>
    <message>
        <source>%1 = %2 is not possible; the value must be %3</source>
        <translation>%1 = %2 不可用；该值必须%3</translation>
    </message>
    <message>
        <source>the material model does not use it</source>
        <translation>材料模型不使用它</translation>
    </message>
    <message>
        <source>the hyperelastic model replaces it</source>
        <translation>超弹性模型取代了它</translation>
    </message>
    <message>
        <source>more than one hyperelastic model is switched on</source>
        <translation>启用了多个超弹性模型</translation>
    </message>
    <message>
        <source>the model is not switched on</source>
        <translation>该模型未启用</translation>
    </message>
    <message>
        <source>the format has no card for the yield type &quot;%1&quot; with the quantities of the catalogue</source>
        <translation>对于屈服类型“%1”，该格式没有能使用目录中各量的卡片</translation>
    </message>
    <message>
        <source>the hardening type &quot;%1&quot; needs a curve of yield stresses and plastic strains</source>
        <translation>硬化类型“%1”需要屈服应力与塑性应变的曲线</translation>
    </message>
    <message>
        <source>the catalogue does not have the shares of isotropic and kinematic hardening</source>
        <translation>目录中没有等向硬化与随动硬化的比例</translation>
    </message>
    <message>
        <source>there are %1 yield stresses and %2 plastic strains</source>
        <translation>有 %1 个屈服应力和 %2 个塑性应变</translation>
    </message>
    <message>
        <source>the curve has no points</source>
        <translation>曲线没有点</translation>
    </message>
    <message>
        <source>the first plastic strain is %1, but the solver takes the first stress as the yield stress at 0; add a point at 0</source>
        <translation>第一个塑性应变为 %1，但求解器把第一个应力当作塑性应变为 0 时的屈服应力；请添加 0 处的点</translation>
    </message>
    <message>
        <source>the plastic strains do not ascend</source>
        <translation>塑性应变不是递增的</translation>
    </message>
    <message>
        <source>the curve begins with another yield stress, %1</source>
        <translation>曲线以另一屈服应力 %1 开始</translation>
    </message>
    <message>
        <source>the solver replaces %1 by %2; choose another unit system</source>
        <translation>求解器会把 %1 替换为 %2；请选择其他单位制</translation>
    </message>
    <message>
        <source>beside plasticity, the solver applies the law to the overstress only</source>
        <translation>与塑性并存时，求解器只对超应力应用该定律</translation>
    </message>
    <message>
        <source>the unit of the factor depends on both exponents, of which one is missing</source>
        <translation>该系数的单位取决于两个指数，而其中一个缺失</translation>
    </message>
    <message>
        <source>a conductivity of %1 has no resistivity</source>
        <translation>电导率为 %1 时没有电阻率</translation>
    </message>
    <message>
        <source>as its reciprocal, the resistivity</source>
        <translation>写作其倒数，即电阻率</translation>
    </message>
    <message>
        <source>as the initial shear modulus, which is twice the constant</source>
        <translation>写作初始剪切模量，即该常数的两倍</translation>
    </message>
    <message>
        <source>as the tangent modulus E H / (E + H), the slope of stress over total strain</source>
        <translation>写作切线模量 E H / (E + H)，即应力对总应变的斜率</translation>
    </message>
    <message>
        <source>as total strains, plastic strain + stress / E</source>
        <translation>写作总应变，塑性应变 + 应力 / E</translation>
    </message>
    <message>
        <source>the format has no eight-chain model</source>
        <translation>该格式没有八链模型</translation>
    </message>
    <message>
        <source>as the bulk modulus 2 / D1</source>
        <translation>写作体积模量 2 / D1</translation>
    </message>
    <message>
        <source>as half the bulk modulus, 1 / D1</source>
        <translation>写作体积模量的一半，1 / D1</translation>
    </message>
    <message>
        <source>as Poisson&apos;s ratio, from the bulk modulus 2 / D1 and the initial shear modulus</source>
        <translation>写作泊松比，由体积模量 2 / D1 和初始剪切模量得到</translation>
    </message>
    <message>
        <source>as the number of links of a chain, the square of the stretch</source>
        <translation>写作链的链节数，即伸长比的平方</translation>
    </message>
    <message>
        <source>the solid has the number of the material; a fluid with the same number is not possible</source>
        <translation>固体已使用该材料编号；不能有相同编号的流体</translation>
    </message>
    <message>
        <source>the solver takes only exponents with %1 and %2</source>
        <translation>求解器只接受满足 %1 和 %2 的指数</translation>
    </message>
    <message>
        <source>as the total form, strain = A / (M + 1) stress^N time^(M + 1)</source>
        <translation>写作总量形式，应变 = A / (M + 1) 应力^N 时间^(M + 1)</translation>
    </message>
    <message>
        <source>the card hardens isotropically along its curve</source>
        <translation>该卡片沿其曲线等向硬化</translation>
    </message>
    <message>
        <source>another model of the material has its number</source>
        <translation>该编号已被此材料的另一模型使用</translation>
    </message>
    <message>
        <source>as the long-term shear modulus (1 - g) G</source>
        <translation>写作长期剪切模量 (1 - g) G</translation>
    </message>
    <message>
        <source>as the decay constant, 1 / tau</source>
        <translation>写作衰减常数，1 / tau</translation>
    </message>
    <message>
        <source>as a parameter of the yield stress</source>
        <translation>写作屈服应力的参数</translation>
    </message>
    <message>
        <source>no card of the material has a place for it</source>
        <translation>该材料的卡片都没有它的位置</translation>
    </message>
    <message>
        <source>The format has no numbers of materials; the chosen number has no effect.</source>
        <translation>该格式没有材料编号；所选编号不起作用。</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>the deck does not say in which units its numbers are; give the unit system</source>
        <translation>文件没有说明其数值的单位；请给出单位制</translation>
    </message>
    <message>
        <source>the deck does not say in which units its numbers are; give the unit system; the numbers look like %1</source>
        <translation>文件没有说明其数值的单位；请给出单位制；这些数值看起来是 %1</translation>
    </message>
    <message>
        <source>decks of %1 can be written, but not read</source>
        <translation>%1 的文件可以写出，但不能读取</translation>
    </message>
    <message>
        <source>the content is binary</source>
        <translation>内容是二进制的</translation>
    </message>
    <message>
        <source>the file cannot be read to its end</source>
        <translation>文件无法读取到末尾</translation>
    </message>
    <message>
        <source>The numbers of the deck are read in the unit system %1.</source>
        <translation>文件中的数值按单位制 %1 读取。</translation>
    </message>
    <message>
        <source>The deck declares the unit system %1.</source>
        <translation>文件声明的单位制是 %1。</translation>
    </message>
    <message>
        <source>The deck declares the unit system %1, but is read in %2, which was chosen.</source>
        <translation>文件声明的单位制是 %1，但按所选的 %2 读取。</translation>
    </message>
    <message>
        <source>Not of materials, and therefore not taken: %1.</source>
        <translation>不属于材料，因此未读取：%1。</translation>
    </message>
    <message>
        <source>The file includes &quot;%1&quot; in line %2, which is not read; read this file too.</source>
        <translation>文件在第 %2 行包含“%1”，该文件未被读取；请另行读取它。</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>从 %1 换算为 %2</translation>
    </message>
    <message>
        <source>the number is too large or too small in the unit of the catalogue</source>
        <translation>该数值以目录的单位表示时过大或过小</translation>
    </message>
    <message>
        <source>the catalogue has no quantity for it</source>
        <translation>目录中没有对应的量</translation>
    </message>
    <message>
        <source>has no name in the deck</source>
        <translation>在文件中没有名称</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>“%1”不是数值</translation>
    </message>
    <message>
        <source>%1 has too few numbers; the least is %2</source>
        <translation>%1 的数值太少；至少需要 %2 个</translation>
    </message>
    <message>
        <source>%1 has more than %2 lines</source>
        <translation>%1 超过 %2 行</translation>
    </message>
    <message>
        <source>the line is longer than %1 characters</source>
        <translation>该行超过 %1 个字符</translation>
    </message>
    <message>
        <source>it is a table over temperature, and the catalogue has no such tables</source>
        <translation>它是随温度变化的表，而目录没有这种表</translation>
    </message>
    <message>
        <source>it depends on more than the temperature</source>
        <translation>它不仅取决于温度</translation>
    </message>
    <message>
        <source>%1 is not isotropic</source>
        <translation>%1 不是各向同性的</translation>
    </message>
    <message>
        <source>the catalogue has no model for %1</source>
        <translation>目录中没有 %1 的模型</translation>
    </message>
    <message>
        <source>the catalogue has no constants C20 and C02</source>
        <translation>目录中没有常数 C20 和 C02</translation>
    </message>
    <message>
        <source>the card of line %1 is replaced by another one of the same material in line %2</source>
        <translation>第 %1 行的卡片被同一材料第 %2 行的卡片取代</translation>
    </message>
    <message>
        <source>its numbers are in another file</source>
        <translation>其数值在另一个文件中</translation>
    </message>
    <message>
        <source>its numbers are parameters, which are not evaluated</source>
        <translation>其数值是参数，不作计算</translation>
    </message>
    <message>
        <source>the keyword is not known</source>
        <translation>关键字未知</translation>
    </message>
    <message>
        <source>line %1: CalculiX reads only the first 20 characters of &quot;%2&quot;</source>
        <translation>第 %1 行：CalculiX 只读取“%2”的前 20 个字符</translation>
    </message>
    <message>
        <source>from two points of the curve, up to a plastic strain of %1</source>
        <translation>由曲线的两个点得到，直到塑性应变 %1</translation>
    </message>
    <message>
        <source>from one point of the curve: no hardening</source>
        <translation>由曲线的一个点得到：无硬化</translation>
    </message>
    <message>
        <source>from a polynomial of the strain energy</source>
        <translation>由应变能的多项式得到</translation>
    </message>
    <message>
        <source>the term of D2 is not taken</source>
        <translation>含 D2 的项未读取</translation>
    </message>
    <message>
        <source>0 is read as incompressible; CalculiX itself takes a bulk modulus of 20 shear moduli</source>
        <translation>0 按不可压缩读取；CalculiX 本身取体积模量为 20 倍剪切模量</translation>
    </message>
    <message>
        <source>the deck has no value; the solver takes 0</source>
        <translation>文件没有该值；求解器取 0</translation>
    </message>
    <message>
        <source>The creep law has no LAW. It is read as time hardening, as CalculiX does; relatives take strain hardening.</source>
        <translation>蠕变定律没有 LAW。它像 CalculiX 一样按时间硬化读取；同类求解器按应变硬化处理。</translation>
    </message>
    <message>
        <source>it has %1 terms, and the catalogue has one</source>
        <translation>它有 %1 项，而目录只有一项</translation>
    </message>
    <message>
        <source>the catalogue has no relaxation of the bulk modulus</source>
        <translation>目录中没有体积模量的松弛</translation>
    </message>
    <message>
        <source>from the long-term modulus, with a constant bulk modulus</source>
        <translation>由长期模量得到，体积模量不变</translation>
    </message>
    <message>
        <source>the shear modulus relaxes to 0, so that no elasticity of long term belongs to it</source>
        <translation>剪切模量松弛至 0，因此没有对应的长期弹性</translation>
    </message>
    <message>
        <source>only the relaxation over time by a Prony series is read</source>
        <translation>只读取以 Prony 级数表示的随时间的松弛</translation>
    </message>
    <message>
        <source>it depends on the strain rate</source>
        <translation>它取决于应变率</translation>
    </message>
    <message>
        <source>the first plastic strain is %1, not 0; check the curve</source>
        <translation>第一个塑性应变是 %1，不是 0；请检查曲线</translation>
    </message>
    <message>
        <source>the plastic strains do not ascend; check the curve</source>
        <translation>塑性应变不是递增的；请检查曲线</translation>
    </message>
    <message>
        <source>from the bulk modulus and the density</source>
        <translation>由体积模量和密度得到</translation>
    </message>
    <message>
        <source>the speed of sound needs a bulk modulus and a density above 0</source>
        <translation>声速需要大于 0 的体积模量和密度</translation>
    </message>
    <message>
        <source>%1 more cards are not taken</source>
        <translation>另有 %1 张卡片未读取</translation>
    </message>
    <message>
        <source>the solver computes sound only as an analogy of heat conduction</source>
        <translation>求解器只能以热传导类比计算声学</translation>
    </message>
    <message>
        <source>switched on by the card</source>
        <translation>由卡片启用</translation>
    </message>
    <message>
        <source>switched on by a parameter of the card</source>
        <translation>由卡片的参数启用</translation>
    </message>
    <message>
        <source>as polynomial of the second order whose other constants have no effect</source>
        <translation>写作二阶多项式，其余常数不起作用</translation>
    </message>
    <message>
        <source>0 is written as a bulk modulus of 500 shear moduli</source>
        <translation>0 写作剪切模量 500 倍的体积模量</translation>
    </message>
    <message>
        <source>the card is of the yield criterion of Mises only</source>
        <translation>该卡片仅适用于 Mises 屈服准则</translation>
    </message>
    <message>
        <source>the solver has viscoplasticity only as a creep law of the overstress</source>
        <translation>求解器只以超应力的蠕变定律提供黏塑性</translation>
    </message>
    <message>
        <source>the solver has no plasticity with internal friction</source>
        <translation>求解器没有带内摩擦的塑性</translation>
    </message>
    <message>
        <source>as points of the curve of true stress over plastic strain</source>
        <translation>写作真实应力—塑性应变曲线上的点</translation>
    </message>
    <message>
        <source>the solver has no viscoelastic material</source>
        <translation>求解器没有黏弹性材料</translation>
    </message>
    <message>
        <source>the format has no card for it</source>
        <translation>该格式没有相应的卡片</translation>
    </message>
    <message>
        <source>the card also needs the number of a domain, which depends on the model</source>
        <translation>卡片还需要区域编号，它取决于模型</translation>
    </message>
    <message>
        <source>as half the bulk modulus, 1 / D1; 0 as a bulk modulus of 500 shear moduli</source>
        <translation>写作体积模量的一半 1 / D1；0 写作剪切模量 500 倍的体积模量</translation>
    </message>
    <message>
        <source>the card also needs a cohesion, which the catalogue does not have</source>
        <translation>卡片还需要黏聚力，而目录中没有</translation>
    </message>
    <message>
        <source>as total strain, plastic strain + stress / E</source>
        <translation>写作总应变，塑性应变 + 应力 / E</translation>
    </message>
    <message>
        <source>in NEO as the initial shear modulus, 2 C10</source>
        <translation>在 NEO 中写作初始剪切模量 2 C10</translation>
    </message>
    <message>
        <source>the card needs the exponent of a rate law, which the catalogue does not have</source>
        <translation>卡片需要率定律的指数，而目录中没有</translation>
    </message>
    <message>
        <source>as the tangent modulus E H / (E + H)</source>
        <translation>写作切线模量 E H / (E + H)</translation>
    </message>
    <message>
        <source>as the resistivity, its reciprocal</source>
        <translation>写作电阻率，即其倒数</translation>
    </message>
    <message>
        <source>as the number of links, the square of the stretch</source>
        <translation>写作链节数，即伸长比的平方</translation>
    </message>
    <message>
        <source>as Poisson&apos;s ratio, or as the bulk modulus 2 / D1; 0 as a bulk modulus of 500 shear moduli</source>
        <translation>写作泊松比或体积模量 2 / D1；0 写作剪切模量 500 倍的体积模量</translation>
    </message>
    <message>
        <source>as the long-term shear modulus, (1 - g) G</source>
        <translation>写作长期剪切模量，(1 - g) G</translation>
    </message>
    <message>
        <source>the card also needs the kind of conductor, which depends on the model</source>
        <translation>卡片还需要导体类型，它取决于模型</translation>
    </message>
    <message>
        <source>the solver has neo-Hookean solids only by E and nu, with another energy of volume</source>
        <translation>求解器的 neo-Hooke 固体只用 E 和 nu，且体积能不同</translation>
    </message>
    <message>
        <source>the solver has it only as a function that the user programs</source>
        <translation>求解器仅以用户编写的函数提供</translation>
    </message>
    <message>
        <source>as the text on</source>
        <translation>写作文本 on</translation>
    </message>
    <message>
        <source>as a parameter of the yield stress, if both lists have the same length</source>
        <translation>若两个列表长度相同，则写作屈服应力的参数</translation>
    </message>
    <message>
        <source>the entry %1 has more than %2 fields</source>
        <translation>条目 %1 的字段多于 %2 个</translation>
    </message>
    <message>
        <source>the material %1 has more than %2 entries</source>
        <translation>材料 %1 的条目多于 %2 个</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the number of a material; %2 needs a whole number above 0</source>
        <translation>“%1”不是材料编号；%2 需要大于 0 的整数</translation>
    </message>
    <message>
        <source>the field %1 has &quot;%2&quot;, which is not a number</source>
        <translation>字段 %1 的内容是“%2”，不是数值</translation>
    </message>
    <message>
        <source>The catalogue has no quantities for %1 (number of entries: %2, first in line %3).</source>
        <translation>目录中没有与 %1 对应的量（条目数：%2，首次出现在第 %3 行）。</translation>
    </message>
    <message>
        <source>another entry has this number; that of line %1 is not taken</source>
        <translation>已有其他条目使用该编号；第 %1 行的条目未采用</translation>
    </message>
    <message>
        <source>the continuation &quot;%1&quot; of %2 is not in the file</source>
        <translation>文件中没有 %2 的续行“%1”</translation>
    </message>
    <message>
        <source>tables over temperature are not taken</source>
        <translation>不采用随温度变化的表</translation>
    </message>
    <message>
        <source>the number contradicts the others of the material</source>
        <translation>该数值与材料的其他数值矛盾</translation>
    </message>
    <message>
        <source>%1 is blank, which means %2</source>
        <translation>%1 为空，表示 %2</translation>
    </message>
    <message>
        <source>from the shear modulus: %1</source>
        <translation>由剪切模量得出：%1</translation>
    </message>
    <message>
        <source>from the bulk modulus: %1</source>
        <translation>由体积模量得出：%1</translation>
    </message>
    <message>
        <source>from half the bulk modulus, 1 / D1</source>
        <translation>由体积模量的一半 1 / D1 得出</translation>
    </message>
    <message>
        <source>from the total form, strain = A / (M + 1) stress^N time^(M + 1)</source>
        <translation>由总量形式得出：应变 = A / (M + 1) 应力^N 时间^(M + 1)</translation>
    </message>
    <message>
        <source>from total strains, less stress / E</source>
        <translation>由总应变减去应力 / E 得出</translation>
    </message>
    <message>
        <source>from total strains, less stress / E; the first one is not exactly stress / E, but read as plastic strain 0</source>
        <translation>由总应变减去应力 / E 得出；第一个总应变不恰好等于应力 / E，但按塑性应变 0 读取</translation>
    </message>
    <message>
        <source>from total strains, less stress / E; the slope up to the first stress is not E, but its plastic strain is read as 0</source>
        <translation>由总应变减去应力 / E 得出；到第一个应力的斜率不是 E，但其塑性应变按 0 读取</translation>
    </message>
    <message>
        <source>the points of compression are not taken</source>
        <translation>不采用受压的点</translation>
    </message>
    <message>
        <source>RHO of MAT4 is blank, which means 1: if the solver used the deck so, CP is the heat capacity of a volume</source>
        <translation>MAT4 的 RHO 为空，表示 1：如果求解器就这样使用该文件，则 CP 是单位体积的热容</translation>
    </message>
    <message>
        <source>the catalogue has no quantity for %1, and without it the others would mean something else</source>
        <translation>目录中没有与 %1 对应的量，缺少它时其他量的含义会改变</translation>
    </message>
    <message>
        <source>only the creep law of type 300 with a, b and d is taken</source>
        <translation>只采用类型为 300 且带有 a、b 和 d 的蠕变律</translation>
    </message>
    <message>
        <source>the table %1 is not in the file</source>
        <translation>文件中没有表 %1</translation>
    </message>
    <message>
        <source>the table %1 is not read, because the tables of the file have more than %2 points</source>
        <translation>未读取表 %1，因为文件中的表多于 %2 个点</translation>
    </message>
    <message>
        <source>the table does not have true stress over strain</source>
        <translation>该表不是真实应力随应变的变化</translation>
    </message>
    <message>
        <source>the table is over total strain, but does not begin with the origin and the yield point</source>
        <translation>该表以总应变为自变量，但不是从原点和屈服点开始</translation>
    </message>
    <message>
        <source>the file has more than %1 MB; divide it into several files</source>
        <translation>文件大于 %1 MB；请将其分成多个文件</translation>
    </message>
    <message>
        <source>the XML is not well-formed: %1</source>
        <translation>XML 格式不正确：%1</translation>
    </message>
    <message>
        <source>the file has a document type declaration (DOCTYPE), which is not read because it may define entities; remove it</source>
        <translation>文件含有文档类型声明 (DOCTYPE)，由于它可能定义实体，因此不读取；请将其删除</translation>
    </message>
    <message>
        <source>the file has no element MatML_Doc</source>
        <translation>文件中没有元素 MatML_Doc</translation>
    </message>
    <message>
        <source>The numbers of the file have their own units.</source>
        <translation>文件中的数值带有各自的单位。</translation>
    </message>
    <message>
        <source>the file does not declare the property</source>
        <translation>文件没有声明该属性</translation>
    </message>
    <message>
        <source>the property has no value</source>
        <translation>该属性没有值</translation>
    </message>
    <message>
        <source>the material has the quantity already</source>
        <translation>材料已有该量</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is not known</source>
        <translation>单位“%1”未知</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; does not fit the quantity</source>
        <translation>单位“%1”与该量不符</translation>
    </message>
    <message>
        <source>the values depend on %1, which the catalogue does not have</source>
        <translation>这些值取决于 %1，而目录中没有它</translation>
    </message>
    <message>
        <source>the quantity does not take the word &quot;%1&quot;</source>
        <translation>该量不接受“%1”这个词</translation>
    </message>
    <message>
        <source>rounded to a field of %1 characters</source>
        <translation>舍入到 %1 个字符的字段</translation>
    </message>
    <message>
        <source>the solver computes with errors if the factor is below %1; choose another unit system</source>
        <translation>系数低于 %1 时求解器计算有误差；请选择其他单位制</translation>
    </message>
    <message>
        <source>the solver computes it right only in steps with large strains; write NLGEOM behind *STEP</source>
        <translation>求解器仅在大应变分析步中计算正确；请在 *STEP 后写 NLGEOM</translation>
    </message>
    <message>
        <source>as the bulk modulus, the density times the square of the speed</source>
        <translation>写为体积模量，即密度乘以声速的平方</translation>
    </message>
    <message>
        <source>as the permittivity, times that of vacuum</source>
        <translation>写为介电常数，即乘以真空介电常数</translation>
    </message>
    <message>
        <source>as the permeability, times that of vacuum</source>
        <translation>写为磁导率，即乘以真空磁导率</translation>
    </message>
    <message>
        <source>the deck declares the unit system %1 here, but %2 in a line before; divide it into decks of one unit system each</source>
        <translation>文件在此处声明单位制 %1，而在前面的行中声明 %2；请将其拆分为各用一种单位制的文件</translation>
    </message>
    <message>
        <source>from the absolute value, over that of vacuum</source>
        <translation>由绝对值除以真空值得到</translation>
    </message>
    <message>
        <source>The file includes files in %1 more lines, which are not read.</source>
        <translation>文件还在另外 %1 行中包含其他文件，这些文件未被读取。</translation>
    </message>
    <message>
        <source>%1 more cards are not of materials.</source>
        <translation>另有 %1 个卡片不属于材料。</translation>
    </message>
    <message>
        <source>no quantity is read; the material is empty</source>
        <translation>没有读取任何量；该材料为空</translation>
    </message>
    <message>
        <source>%1: values at temperature %2; the temperature is not kept</source>
        <translation>%1：温度 %2 下的值；温度不被保留</translation>
    </message>
    <message>
        <source>The catalogue has no quantities for %1 more kinds of entries.</source>
        <translation>目录中没有另外 %1 种条目对应的量。</translation>
    </message>
    <message>
        <source>the table has no points</source>
        <translation>该表没有数据点</translation>
    </message>
    <message>
        <source>the table needs ascending total strains (plastic strain plus stress / E), also in the digits of its fields</source>
        <translation>该表需要递增的总应变（塑性应变加应力/E），其字段的位数也须如此</translation>
    </message>
    <message>
        <source>Any of these values may be wrong.</source>
        <translation>这些值中的任何一个都可能有误。</translation>
    </message>
    <message>
        <source>The other values are those of %1, which has %2 to %3.</source>
        <translation>其他值符合%1，其通常值为 %2 至 %3。</translation>
    </message>
    <message>
        <source>One possibility: %1 is usual for %2; then multiply by %3</source>
        <translation>一种可能：%1 对%2是常见的；此时乘以 %3</translation>
    </message>
    <message>
        <source>One possibility: %1 would not be doubted; then multiply by %2</source>
        <translation>一种可能：%1 不会有疑问；此时乘以 %2</translation>
    </message>
    <message>
        <source>the name is shortened to &quot;%1&quot;; the format takes %2 bytes of it</source>
        <translation>名称缩短为“%1”；该格式最多取其 %2 个字节</translation>
    </message>
    <message>
        <source>the material has no word for it</source>
        <translation>材料没有相应的词</translation>
    </message>
    <message>
        <source>the material has no word for it; written as &quot;%1&quot;</source>
        <translation>材料没有相应的词；写为“%1”</translation>
    </message>
    <message>
        <source>%1 materials (%2)</source>
        <translation>%1 个材料（%2）</translation>
    </message>
    <message>
        <source>for example %1: %2</source>
        <translation>例如 %1：%2</translation>
    </message>
    <message>
        <source>line %1, %2: %3</source>
        <translation>第 %1 行，%2：%3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; exclude each other; remove one of them</source>
        <translation>“%1”与“%2”互相排斥；请删除其中之一</translation>
    </message>
    <message>
        <source>its specific heat differs from that of *SPECIFIC HEAT, which is taken</source>
        <translation>其比热与 *SPECIFIC HEAT 的不同，采用后者</translation>
    </message>
    <message>
        <source>the parameter %1 is not evaluated; check the numbers</source>
        <translation>参数 %1 不予处理；请检查数值</translation>
    </message>
    <message>
        <source>the other numbers of the material give it within 1 %: %1; the number itself is not kept</source>
        <translation>材料的其他数值在 1 % 以内给出该值：%1；该数值本身不保留</translation>
    </message>
    <message>
        <source>the table replaces it</source>
        <translation>由表格代替</translation>
    </message>
    <message>
        <source>the file has more than %1 elements and attributes; divide it into several files</source>
        <translation>文件中的元素和属性超过 %1 个；请将其拆分为多个文件</translation>
    </message>
    <message>
        <source>The exponent in &quot;%1&quot; must follow the number without a blank.</source>
        <translation>“%1”中的指数必须紧跟在数字之后，中间不能有空格。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither the name of a unit system nor base units such as &quot;%2&quot;.</source>
        <translation>“%1”既不是单位制的名称，也不是诸如“%2”的基本单位。</translation>
    </message>
    <message>
        <source>%1 ends where line %2 includes a file. If that file begins with more numbers of the card, they are missing.</source>
        <translation>%1 在第 %2 行引入文件处结束。如果该文件以该卡片的更多数值开头，则这些数值缺失。</translation>
    </message>
    <message>
        <source>the material names it &quot;%1&quot;; the deck has it under its own name</source>
        <translation>材料将其命名为“%1”；求解器文件使用其自身的名称</translation>
    </message>
    <message>
        <source>no card of the deck has anything of the material</source>
        <translation>求解器文件中没有任何卡片包含该材料的内容</translation>
    </message>
</context>
<context>
    <name>vxUnits::Word</name>
    <message>
        <source>N-methylformamide</source>
        <translation>N-甲基甲酰胺</translation>
    </message>
    <message>
        <source>a pure number</source>
        <translation>无量纲数</translation>
    </message>
    <message>
        <source>acceleration</source>
        <translation>加速度</translation>
    </message>
    <message>
        <source>aerogel</source>
        <translation>气凝胶</translation>
    </message>
    <message>
        <source>air or a similar gas</source>
        <translation>空气或类似气体</translation>
    </message>
    <message>
        <source>alcohol, hydrocarbon or solvent</source>
        <translation>醇、烃或溶剂</translation>
    </message>
    <message>
        <source>alkali or alkaline earth metal</source>
        <translation>碱金属或碱土金属</translation>
    </message>
    <message>
        <source>aluminium alloy</source>
        <translation>铝合金</translation>
    </message>
    <message>
        <source>aluminium nitride or beryllia</source>
        <translation>氮化铝或氧化铍</translation>
    </message>
    <message>
        <source>amount of substance</source>
        <translation>物质的量</translation>
    </message>
    <message>
        <source>angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>area</source>
        <translation>面积</translation>
    </message>
    <message>
        <source>asphalt</source>
        <translation>沥青混凝土</translation>
    </message>
    <message>
        <source>auxetic foam</source>
        <translation>拉胀泡沫</translation>
    </message>
    <message>
        <source>bamboo</source>
        <translation>竹材</translation>
    </message>
    <message>
        <source>bentonite</source>
        <translation>膨润土</translation>
    </message>
    <message>
        <source>beryllium</source>
        <translation>铍</translation>
    </message>
    <message>
        <source>bismuth or antimony</source>
        <translation>铋或锑</translation>
    </message>
    <message>
        <source>blood, milk or suspension</source>
        <translation>血液、牛奶或悬浮液</translation>
    </message>
    <message>
        <source>bone or tooth</source>
        <translation>骨或牙齿</translation>
    </message>
    <message>
        <source>boride or carbide of a heavy metal</source>
        <translation>重金属硼化物或碳化物</translation>
    </message>
    <message>
        <source>boron carbide</source>
        <translation>碳化硼</translation>
    </message>
    <message>
        <source>boron fibre composite</source>
        <translation>硼纤维复合材料</translation>
    </message>
    <message>
        <source>boron nitride, pressed</source>
        <translation>压制氮化硼</translation>
    </message>
    <message>
        <source>calcium copper titanate</source>
        <translation>钛酸铜钙</translation>
    </message>
    <message>
        <source>carbon fibre</source>
        <translation>碳纤维</translation>
    </message>
    <message>
        <source>carbon fibre composite</source>
        <translation>碳纤维复合材料</translation>
    </message>
    <message>
        <source>carbon or graphite</source>
        <translation>碳或石墨</translation>
    </message>
    <message>
        <source>cast iron</source>
        <translation>铸铁</translation>
    </message>
    <message>
        <source>chromium, manganese or vanadium</source>
        <translation>铬、锰或钒</translation>
    </message>
    <message>
        <source>cobalt alloy</source>
        <translation>钴合金</translation>
    </message>
    <message>
        <source>compressed gas</source>
        <translation>压缩气体</translation>
    </message>
    <message>
        <source>compressed hydrogen or helium</source>
        <translation>压缩氢气或氦气</translation>
    </message>
    <message>
        <source>compressibility</source>
        <translation>压缩率</translation>
    </message>
    <message>
        <source>concrete</source>
        <translation>混凝土</translation>
    </message>
    <message>
        <source>copper alloy</source>
        <translation>铜合金</translation>
    </message>
    <message>
        <source>cork</source>
        <translation>软木</translation>
    </message>
    <message>
        <source>cryogenic liquid</source>
        <translation>低温液体</translation>
    </message>
    <message>
        <source>density</source>
        <translation>密度</translation>
    </message>
    <message>
        <source>diamond</source>
        <translation>金刚石</translation>
    </message>
    <message>
        <source>diffusion creep</source>
        <translation>扩散蠕变</translation>
    </message>
    <message>
        <source>dispersion-strengthened alloy</source>
        <translation>弥散强化合金</translation>
    </message>
    <message>
        <source>dry gas</source>
        <translation>干燥气体</translation>
    </message>
    <message>
        <source>dynamic viscosity</source>
        <translation>动力黏度</translation>
    </message>
    <message>
        <source>ebonite</source>
        <translation>硬橡胶</translation>
    </message>
    <message>
        <source>elastic solid</source>
        <translation>弹性固体</translation>
    </message>
    <message>
        <source>electric charge</source>
        <translation>电荷</translation>
    </message>
    <message>
        <source>electric current</source>
        <translation>电流</translation>
    </message>
    <message>
        <source>electrical conductance</source>
        <translation>电导</translation>
    </message>
    <message>
        <source>electrical conductivity</source>
        <translation>电导率</translation>
    </message>
    <message>
        <source>electrical resistance</source>
        <translation>电阻</translation>
    </message>
    <message>
        <source>electrical resistivity</source>
        <translation>电阻率</translation>
    </message>
    <message>
        <source>energy</source>
        <translation>能量</translation>
    </message>
    <message>
        <source>energy per mass</source>
        <translation>单位质量能量</translation>
    </message>
    <message>
        <source>ferrite</source>
        <translation>铁氧体</translation>
    </message>
    <message>
        <source>ferrofluid</source>
        <translation>磁流体</translation>
    </message>
    <message>
        <source>filled rubber</source>
        <translation>填充橡胶</translation>
    </message>
    <message>
        <source>first yield</source>
        <translation>初始屈服</translation>
    </message>
    <message>
        <source>fitted constant</source>
        <translation>拟合常数</translation>
    </message>
    <message>
        <source>fluid</source>
        <translation>流体</translation>
    </message>
    <message>
        <source>fluoropolymer</source>
        <translation>含氟聚合物</translation>
    </message>
    <message>
        <source>force</source>
        <translation>力</translation>
    </message>
    <message>
        <source>force per length</source>
        <translation>单位长度力</translation>
    </message>
    <message>
        <source>force per volume</source>
        <translation>单位体积力</translation>
    </message>
    <message>
        <source>frequency</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>gel</source>
        <translation>凝胶</translation>
    </message>
    <message>
        <source>germanium or gallium arsenide</source>
        <translation>锗或砷化镓</translation>
    </message>
    <message>
        <source>glass</source>
        <translation>玻璃</translation>
    </message>
    <message>
        <source>glass ceramic</source>
        <translation>微晶玻璃</translation>
    </message>
    <message>
        <source>glass or aramid fibre composite</source>
        <translation>玻璃纤维或芳纶复合材料</translation>
    </message>
    <message>
        <source>glass transition of a fluid</source>
        <translation>流体的玻璃化转变</translation>
    </message>
    <message>
        <source>glass, basalt or ceramic fibre</source>
        <translation>玻璃、玄武岩或陶瓷纤维</translation>
    </message>
    <message>
        <source>graphene aerogel</source>
        <translation>石墨烯气凝胶</translation>
    </message>
    <message>
        <source>halogenated liquid</source>
        <translation>卤化液体</translation>
    </message>
    <message>
        <source>hard metal</source>
        <translation>硬质合金</translation>
    </message>
    <message>
        <source>heat capacity</source>
        <translation>热容</translation>
    </message>
    <message>
        <source>heat transfer coefficient</source>
        <translation>传热系数</translation>
    </message>
    <message>
        <source>heavy gas</source>
        <translation>重气体</translation>
    </message>
    <message>
        <source>helium</source>
        <translation>氦</translation>
    </message>
    <message>
        <source>hexane</source>
        <translation>己烷</translation>
    </message>
    <message>
        <source>honeycomb</source>
        <translation>蜂窝</translation>
    </message>
    <message>
        <source>hot gas</source>
        <translation>热气体</translation>
    </message>
    <message>
        <source>hot neon</source>
        <translation>高温氖气</translation>
    </message>
    <message>
        <source>hydrocarbon vapour</source>
        <translation>烃蒸气</translation>
    </message>
    <message>
        <source>hydrogel</source>
        <translation>水凝胶</translation>
    </message>
    <message>
        <source>hydrogen</source>
        <translation>氢</translation>
    </message>
    <message>
        <source>hydrogen or helium</source>
        <translation>氢气或氦气</translation>
    </message>
    <message>
        <source>ice</source>
        <translation>冰</translation>
    </message>
    <message>
        <source>ideal plasticity</source>
        <translation>理想塑性</translation>
    </message>
    <message>
        <source>insulating wool or granulate</source>
        <translation>绝热棉或颗粒</translation>
    </message>
    <message>
        <source>ionised air</source>
        <translation>电离空气</translation>
    </message>
    <message>
        <source>kinematic viscosity or diffusivity</source>
        <translation>运动黏度或扩散率</translation>
    </message>
    <message>
        <source>lead, tin or solder</source>
        <translation>铅、锡或焊料</translation>
    </message>
    <message>
        <source>length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>light concrete</source>
        <translation>轻质混凝土</translation>
    </message>
    <message>
        <source>light gas</source>
        <translation>轻气体</translation>
    </message>
    <message>
        <source>liquefied gas or refrigerant</source>
        <translation>液化气体或制冷剂</translation>
    </message>
    <message>
        <source>liquid aluminium</source>
        <translation>液态铝</translation>
    </message>
    <message>
        <source>liquid helium</source>
        <translation>液氦</translation>
    </message>
    <message>
        <source>liquid hydrogen</source>
        <translation>液氢</translation>
    </message>
    <message>
        <source>liquid lead, tin, bismuth or gallium</source>
        <translation>液态铅、锡、铋或镓</translation>
    </message>
    <message>
        <source>liquid lithium</source>
        <translation>液态锂</translation>
    </message>
    <message>
        <source>liquid sodium</source>
        <translation>液态钠</translation>
    </message>
    <message>
        <source>liquid sodium or potassium</source>
        <translation>液态钠或钾</translation>
    </message>
    <message>
        <source>magnesium alloy</source>
        <translation>镁合金</translation>
    </message>
    <message>
        <source>mass</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>mass flow</source>
        <translation>质量流量</translation>
    </message>
    <message>
        <source>mass per area</source>
        <translation>单位面积质量</translation>
    </message>
    <message>
        <source>mass per length</source>
        <translation>单位长度质量</translation>
    </message>
    <message>
        <source>melt or bitumen</source>
        <translation>熔体或沥青</translation>
    </message>
    <message>
        <source>mercury</source>
        <translation>汞</translation>
    </message>
    <message>
        <source>metal at first yield</source>
        <translation>初始屈服的金属</translation>
    </message>
    <message>
        <source>metal foam</source>
        <translation>金属泡沫</translation>
    </message>
    <message>
        <source>metal matrix composite</source>
        <translation>金属基复合材料</translation>
    </message>
    <message>
        <source>metallic glass</source>
        <translation>金属玻璃</translation>
    </message>
    <message>
        <source>molten metal</source>
        <translation>熔融金属</translation>
    </message>
    <message>
        <source>molten salt</source>
        <translation>熔盐</translation>
    </message>
    <message>
        <source>mortar, plaster or brick</source>
        <translation>砂浆、灰泥或砖</translation>
    </message>
    <message>
        <source>nickel alloy</source>
        <translation>镍合金</translation>
    </message>
    <message>
        <source>nitrogen</source>
        <translation>氮</translation>
    </message>
    <message>
        <source>nuclear oxide</source>
        <translation>核燃料氧化物</translation>
    </message>
    <message>
        <source>oil</source>
        <translation>油</translation>
    </message>
    <message>
        <source>osmium</source>
        <translation>锇</translation>
    </message>
    <message>
        <source>oxide ceramic</source>
        <translation>氧化物陶瓷</translation>
    </message>
    <message>
        <source>oxygen</source>
        <translation>氧</translation>
    </message>
    <message>
        <source>paper, leather or textile</source>
        <translation>纸、皮革或织物</translation>
    </message>
    <message>
        <source>permanent magnet</source>
        <translation>永磁体</translation>
    </message>
    <message>
        <source>piezoceramic or titanate</source>
        <translation>压电陶瓷或钛酸盐</translation>
    </message>
    <message>
        <source>pitch</source>
        <translation>沥青（柏油）</translation>
    </message>
    <message>
        <source>plastic</source>
        <translation>塑料</translation>
    </message>
    <message>
        <source>polymer or natural fibre</source>
        <translation>聚合物或天然纤维</translation>
    </message>
    <message>
        <source>polyolefin</source>
        <translation>聚烯烃</translation>
    </message>
    <message>
        <source>polytetrafluoroethylene</source>
        <translation>聚四氟乙烯</translation>
    </message>
    <message>
        <source>porcelain or clay ceramic</source>
        <translation>瓷或黏土陶瓷</translation>
    </message>
    <message>
        <source>power</source>
        <translation>功率</translation>
    </message>
    <message>
        <source>precious metal</source>
        <translation>贵金属</translation>
    </message>
    <message>
        <source>pressure or stress</source>
        <translation>压力或应力</translation>
    </message>
    <message>
        <source>primary creep</source>
        <translation>初始蠕变</translation>
    </message>
    <message>
        <source>pure copper at 4 K</source>
        <translation>4 K 的纯铜</translation>
    </message>
    <message>
        <source>pure diamond</source>
        <translation>纯金刚石</translation>
    </message>
    <message>
        <source>radon</source>
        <translation>氡</translation>
    </message>
    <message>
        <source>railway ballast</source>
        <translation>铁路道砟</translation>
    </message>
    <message>
        <source>refractory metal</source>
        <translation>难熔金属</translation>
    </message>
    <message>
        <source>reinforced or filled plastic</source>
        <translation>增强或填充塑料</translation>
    </message>
    <message>
        <source>rigid foam</source>
        <translation>硬质泡沫</translation>
    </message>
    <message>
        <source>rock</source>
        <translation>岩石</translation>
    </message>
    <message>
        <source>rubber</source>
        <translation>橡胶</translation>
    </message>
    <message>
        <source>shape memory alloy</source>
        <translation>形状记忆合金</translation>
    </message>
    <message>
        <source>silicon</source>
        <translation>硅</translation>
    </message>
    <message>
        <source>silicon carbide</source>
        <translation>碳化硅</translation>
    </message>
    <message>
        <source>silicon nitride</source>
        <translation>氮化硅</translation>
    </message>
    <message>
        <source>slurry</source>
        <translation>浆体</translation>
    </message>
    <message>
        <source>snow</source>
        <translation>雪</translation>
    </message>
    <message>
        <source>soft foam</source>
        <translation>软质泡沫</translation>
    </message>
    <message>
        <source>soft plastic</source>
        <translation>软质塑料</translation>
    </message>
    <message>
        <source>soft tissue or gel</source>
        <translation>软组织或凝胶</translation>
    </message>
    <message>
        <source>soil</source>
        <translation>土壤</translation>
    </message>
    <message>
        <source>specific heat</source>
        <translation>比热</translation>
    </message>
    <message>
        <source>speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>stainless steel</source>
        <translation>不锈钢</translation>
    </message>
    <message>
        <source>steel</source>
        <translation>钢</translation>
    </message>
    <message>
        <source>stiff polymer</source>
        <translation>刚性聚合物</translation>
    </message>
    <message>
        <source>superconductor</source>
        <translation>超导体</translation>
    </message>
    <message>
        <source>syrup, glycol or glycerol</source>
        <translation>糖浆、乙二醇或甘油</translation>
    </message>
    <message>
        <source>temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>tendon, skin or cartilage</source>
        <translation>肌腱、皮肤或软骨</translation>
    </message>
    <message>
        <source>tertiary creep</source>
        <translation>第三阶段蠕变</translation>
    </message>
    <message>
        <source>thermal conductivity</source>
        <translation>导热率</translation>
    </message>
    <message>
        <source>thermal expansion</source>
        <translation>热膨胀</translation>
    </message>
    <message>
        <source>time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>tissue</source>
        <translation>组织</translation>
    </message>
    <message>
        <source>titanium alloy</source>
        <translation>钛合金</translation>
    </message>
    <message>
        <source>titanium boride, carbide or nitride</source>
        <translation>硼化钛、碳化钛或氮化钛</translation>
    </message>
    <message>
        <source>torsion at high temperature</source>
        <translation>高温扭转</translation>
    </message>
    <message>
        <source>tungsten hexafluoride</source>
        <translation>六氟化钨</translation>
    </message>
    <message>
        <source>uranium</source>
        <translation>铀</translation>
    </message>
    <message>
        <source>uranium or thorium</source>
        <translation>铀或钍</translation>
    </message>
    <message>
        <source>vacuum insulation</source>
        <translation>真空绝热</translation>
    </message>
    <message>
        <source>vapour</source>
        <translation>蒸气</translation>
    </message>
    <message>
        <source>volume</source>
        <translation>体积</translation>
    </message>
    <message>
        <source>water</source>
        <translation>水</translation>
    </message>
    <message>
        <source>water or aqueous solution</source>
        <translation>水或水溶液</translation>
    </message>
    <message>
        <source>whisker</source>
        <translation>晶须</translation>
    </message>
    <message>
        <source>wood, across the grain, or board</source>
        <translation>横纹木材或板材</translation>
    </message>
    <message>
        <source>wood, along the grain</source>
        <translation>顺纹木材</translation>
    </message>
    <message>
        <source>xenon</source>
        <translation>氙</translation>
    </message>
    <message>
        <source>zinc alloy</source>
        <translation>锌合金</translation>
    </message>
    <message>
        <source>zirconia</source>
        <translation>氧化锆</translation>
    </message>
    <message>
        <source>zirconium or hafnium</source>
        <translation>锆或铪</translation>
    </message>
    <message>
        <source>Shear modulus</source>
        <translation>剪切模量</translation>
    </message>
    <message>
        <source>Bulk modulus</source>
        <translation>体积模量</translation>
    </message>
    <message>
        <source>Constrained modulus</source>
        <translation>约束模量</translation>
    </message>
    <message>
        <source>Wave speed in a bar</source>
        <translation>杆中波速</translation>
    </message>
    <message>
        <source>Longitudinal wave speed</source>
        <translation>纵波速度</translation>
    </message>
    <message>
        <source>Shear wave speed</source>
        <translation>剪切波速度</translation>
    </message>
    <message>
        <source>Tangent modulus beyond yield</source>
        <translation>屈服后切线模量</translation>
    </message>
    <message>
        <source>Relaxed shear modulus</source>
        <translation>松弛剪切模量</translation>
    </message>
    <message>
        <source>Initial shear modulus</source>
        <translation>初始剪切模量</translation>
    </message>
    <message>
        <source>Initial bulk modulus</source>
        <translation>初始体积模量</translation>
    </message>
    <message>
        <source>Initial Young&apos;s modulus</source>
        <translation>初始弹性模量</translation>
    </message>
    <message>
        <source>Initial Poisson&apos;s ratio</source>
        <translation>初始泊松比</translation>
    </message>
    <message>
        <source>Heat capacity per volume</source>
        <translation>体积热容</translation>
    </message>
    <message>
        <source>Thermal diffusivity</source>
        <translation>热扩散率</translation>
    </message>
    <message>
        <source>Kinematic viscosity</source>
        <translation>运动粘度</translation>
    </message>
    <message>
        <source>Prandtl number</source>
        <translation>普朗特数</translation>
    </message>
    <message>
        <source>Acoustic bulk modulus</source>
        <translation>声学体积模量</translation>
    </message>
    <message>
        <source>Acoustic impedance</source>
        <translation>声阻抗</translation>
    </message>
    <message>
        <source>Electrical resistivity</source>
        <translation>电阻率</translation>
    </message>
    <message>
        <source>mass per volume</source>
        <translation>单位体积的质量</translation>
    </message>
    <message>
        <source>stress over strain in uniaxial tension at small strain, of an isotropic solid</source>
        <translation>各向同性固体在小应变单轴拉伸时的应力与应变之比</translation>
    </message>
    <message>
        <source>transverse over axial strain in uniaxial tension</source>
        <translation>单轴拉伸时横向应变与轴向应变之比</translation>
    </message>
    <message>
        <source>shear stress over shear rate, of a Newtonian fluid</source>
        <translation>牛顿流体的剪应力与剪切速率之比</translation>
    </message>
    <message>
        <source>coefficient mu of the series of the eight-chain model; the initial shear modulus is mu (1 + 3/(5 lm^2) + 99/(175 lm^4) + 513/(875 lm^6) + 42039/(67375 lm^8)), up to a third more</source>
        <translation>八链模型级数的系数 mu；初始剪切模量为 mu (1 + 3/(5 lm^2) + 99/(175 lm^4) + 513/(875 lm^6) + 42039/(67375 lm^8))，最多大三分之一</translation>
    </message>
    <message>
        <source>2 over the initial bulk modulus; energy (J - 1)^2 / D1; 0 is exactly incompressible</source>
        <translation>2 除以初始体积模量；能量为 (J - 1)^2 / D1；0 表示完全不可压缩</translation>
    </message>
    <message>
        <source>factor of I1 - 3; half the initial shear modulus of a neo-Hookean solid</source>
        <translation>I1 - 3 的系数；neo-Hooke 固体初始剪切模量的一半</translation>
    </message>
    <message>
        <source>factor of I2 - 3; may be negative</source>
        <translation>I2 - 3 的系数；可以为负</translation>
    </message>
    <message>
        <source>on: W = C10 (I1 - 3) + (J - 1)^2 / D1</source>
        <translation>开：W = C10 (I1 - 3) + (J - 1)^2 / D1</translation>
    </message>
    <message>
        <source>on: W = C10 (I1 - 3) + C01 (I2 - 3) + (J - 1)^2 / D1</source>
        <translation>开：W = C10 (I1 - 3) + C01 (I2 - 3) + (J - 1)^2 / D1</translation>
    </message>
    <message>
        <source>on: eight-chain model by mu, limiting stretch and D1</source>
        <translation>开：由 mu、极限伸长和 D1 确定的八链模型</translation>
    </message>
    <message>
        <source>on: linear elasticity by Young&apos;s modulus and Poisson&apos;s ratio; the number is without meaning</source>
        <translation>开：由杨氏模量和泊松比确定的线弹性；数值没有意义</translation>
    </message>
    <message>
        <source>on: plasticity by yield and hardening type</source>
        <translation>开：由屈服类型和硬化类型确定的塑性</translation>
    </message>
    <message>
        <source>yield criterion</source>
        <translation>屈服准则</translation>
    </message>
    <message>
        <source>viscosity of viscoplastic flow: overstress over plastic strain rate; no cohesion, which the catalogue lacks</source>
        <translation>粘塑性流动的粘度：过应力与塑性应变率之比；不是黏聚力，目录中没有黏聚力</translation>
    </message>
    <message>
        <source>angle of internal friction; degrees, not radians</source>
        <translation>内摩擦角；单位为度，不是弧度</translation>
    </message>
    <message>
        <source>plastic modulus: slope of true stress over plastic strain, not over total strain</source>
        <translation>塑性模量：真应力对塑性应变（而非总应变）的斜率</translation>
    </message>
    <message>
        <source>hardening law</source>
        <translation>硬化规律</translation>
    </message>
    <message>
        <source>true yield stresses, one for each plastic strain</source>
        <translation>真屈服应力，每个塑性应变对应一个</translation>
    </message>
    <message>
        <source>logarithmic plastic strains, ascending, the first one 0</source>
        <translation>对数塑性应变，递增，第一个为 0</translation>
    </message>
    <message>
        <source>true stress at the first yield</source>
        <translation>初始屈服时的真应力</translation>
    </message>
    <message>
        <source>on: one term of a Prony series, G(t) / G(0) = 1 - g (1 - exp(-t / tau))</source>
        <translation>开：Prony 级数的一项，G(t) / G(0) = 1 - g (1 - exp(-t / tau))</translation>
    </message>
    <message>
        <source>g: the share of the instantaneous shear modulus that relaxes; a ratio, not a modulus</source>
        <translation>g：瞬时剪切模量中松弛的份额；是比值，不是模量</translation>
    </message>
    <message>
        <source>tau of the Prony term</source>
        <translation>Prony 项的 tau</translation>
    </message>
    <message>
        <source>on: creep strain rate = A stress^N time^M</source>
        <translation>开：蠕变应变率 = A 应力^N 时间^M</translation>
    </message>
    <message>
        <source>factor of the creep law in its rate form; the unit depends on N and M</source>
        <translation>速率形式蠕变律的系数；单位取决于 N 和 M</translation>
    </message>
    <message>
        <source>exponent of the stress</source>
        <translation>应力的指数</translation>
    </message>
    <message>
        <source>exponent of the time in the rate form; 0 is secondary creep</source>
        <translation>速率形式中时间的指数；0 表示第二阶段蠕变</translation>
    </message>
    <message>
        <source>lm: the stretch at which the chains are extended fully; a ratio, whatever the unit text says</source>
        <translation>lm：分子链完全伸展时的伸长比；是比值，无论单位文本如何</translation>
    </message>
    <message>
        <source>factor of (I1 - 3)(I2 - 3); may be negative</source>
        <translation>(I1 - 3)(I2 - 3) 的系数；可以为负</translation>
    </message>
    <message>
        <source>heat per mass and change of temperature</source>
        <translation>单位质量、单位温度变化的热量</translation>
    </message>
    <message>
        <source>heat flux over gradient of temperature</source>
        <translation>热流密度与温度梯度之比</translation>
    </message>
    <message>
        <source>current density over electric field; the W of the unit text is an Omega; 0 is a perfect insulator</source>
        <translation>电流密度与电场强度之比；单位文本中的 W 是 Omega；0 表示理想绝缘体</translation>
    </message>
    <message>
        <source>permittivity over that of vacuum, static</source>
        <translation>静态介电常数与真空介电常数之比</translation>
    </message>
    <message>
        <source>permeability over that of vacuum, initial</source>
        <translation>初始磁导率与真空磁导率之比</translation>
    </message>
    <message>
        <source>speed of longitudinal waves</source>
        <translation>纵波速度</translation>
    </message>
    <message>
        <source>First Lamé constant</source>
        <translation>第一拉梅常数</translation>
    </message>
    <message>
        <source>above 0</source>
        <translation>大于 0</translation>
    </message>
    <message>
        <source>0 or above</source>
        <translation>大于或等于 0</translation>
    </message>
    <message>
        <source>above 1</source>
        <translation>大于 1</translation>
    </message>
    <message>
        <source>above -1</source>
        <translation>大于 -1</translation>
    </message>
    <message>
        <source>above -1 and below 0.5</source>
        <translation>大于 -1 且小于 0.5</translation>
    </message>
    <message>
        <source>above 0 and at most 1</source>
        <translation>大于 0 且不超过 1</translation>
    </message>
    <message>
        <source>finite</source>
        <translation>有限</translation>
    </message>
    <message>
        <source>a logarithmic strain</source>
        <translation>对数应变</translation>
    </message>
</context>
<context>
    <name>vxjson::JsonError</name>
    <message>
        <source>&quot;%1&quot; must be a number from 0 to 1</source>
        <translation>“%1”必须是 0 到 1 之间的数字</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nested more than 1000 levels deep</source>
        <translation>“%1”的嵌套超过 1000 层</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a finite number</source>
        <translation>“%1”不是有限数</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not UTF-8</source>
        <translation>“%1”不是 UTF-8</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is beyond the range of a double</source>
        <translation>“%1”超出双精度数的范围</translation>
    </message>
    <message>
        <source>an escape for half of a surrogate pair, which is not a character</source>
        <translation>转义表示半个代理对，它不是字符</translation>
    </message>
    <message>
        <source>the member &quot;%1&quot; occurs more than once</source>
        <translation>成员“%1”出现多次</translation>
    </message>
    <message>
        <source>there is no value in the text</source>
        <translation>文本中没有值</translation>
    </message>
    <message>
        <source>the escape \u needs four hexadecimal digits</source>
        <translation>转义 \u 需要四位十六进制数字</translation>
    </message>
    <message>
        <source>the closing quote of a text is missing</source>
        <translation>文本缺少结束引号</translation>
    </message>
    <message>
        <source>nested more than 1000 levels deep</source>
        <translation>嵌套超过 1000 层</translation>
    </message>
    <message>
        <source>a comment that does not end</source>
        <translation>未结束的注释</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an escape of JSON</source>
        <translation>“%1”不是 JSON 转义</translation>
    </message>
    <message>
        <source>a control character in a text, which must be written as an escape</source>
        <translation>文本中的控制字符，必须写成转义</translation>
    </message>
    <message>
        <source>the text is longer than 2 GiB</source>
        <translation>文本超过 2 GiB</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>文本不是 UTF-8</translation>
    </message>
    <message>
        <source>a zero byte</source>
        <translation>零字节</translation>
    </message>
    <message>
        <source>an object or an array is needed</source>
        <translation>需要对象或数组</translation>
    </message>
    <message>
        <source>a value is needed here</source>
        <translation>此处需要值</translation>
    </message>
    <message>
        <source>the name of a member, in double quotes, is needed here</source>
        <translation>此处需要双引号中的成员名称</translation>
    </message>
    <message>
        <source>a colon is needed after the name of a member</source>
        <translation>成员名称之后需要冒号</translation>
    </message>
    <message>
        <source>a comma or ] is needed here</source>
        <translation>此处需要逗号或 ]</translation>
    </message>
    <message>
        <source>a comma or } is needed here</source>
        <translation>此处需要逗号或 }</translation>
    </message>
    <message>
        <source>there is more text after the end of the document</source>
        <translation>文档结束后还有文本</translation>
    </message>
    <message>
        <source>the text ends too early</source>
        <translation>文本过早结束</translation>
    </message>
    <message>
        <source>a comment, which a file of this kind does not have</source>
        <translation>注释，此类文件中不允许</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number</source>
        <translation>“%1”不是数字</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a JSON value</source>
        <translation>“%1”不是 JSON 值</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a text</source>
        <translation>“%1”必须是文本</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be true or false</source>
        <translation>“%1”必须是 true 或 false</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a whole number of 32 bits</source>
        <translation>“%1”必须是 32 位整数</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be 1; a later program wrote another version</source>
        <translation>“%1”必须为 1；其他版本由更新的程序写入</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a whole number from 0</source>
        <translation>“%1”必须是不小于 0 的整数</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a number</source>
        <translation>“%1”必须是数字</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be the name of a mode</source>
        <translation>“%1”必须是试验模式的名称</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>“%1”必须是对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a finite number</source>
        <translation>“%1”必须是有限数字</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a word that this member can have</source>
        <translation>“%1”不是此成员允许的词</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a known member</source>
        <translation>“%1”不是已知成员</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>缺少“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an array</source>
        <translation>“%1”必须是数组</translation>
    </message>
    <message>
        <source>the text is not an object</source>
        <translation>该文本不是对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must have as many ordinates as abscissas</source>
        <translation>“%1”的纵坐标与横坐标数量必须相同</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be the name of a measured quantity</source>
        <translation>“%1”必须是测量量的名称</translation>
    </message>
</context>
</TS>

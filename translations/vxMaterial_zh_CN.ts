<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
        <source>A request failed: %1</source>
        <translation>请求失败：%1</translation>
    </message>
    <message>
        <source>A request failed for a reason that is not known.</source>
        <translation>请求因未知原因失败。</translation>
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
        <source>Nothing can be requested while something is undone or redone; nothing was done.</source>
        <translation>撤销或重做期间不能提出请求；未执行任何操作。</translation>
    </message>
</context>
<context>
    <name>Gui::GuiApplication</name>
    <message>
        <source>Something went wrong: %1</source>
        <translation>出现错误：%1</translation>
    </message>
    <message>
        <source>Something went wrong for a reason that is not known.</source>
        <translation>因未知原因出现错误。</translation>
    </message>
</context>
<context>
    <name>Gui::Translator</name>
    <message>
        <source>The translation %1 cannot be read.</source>
        <translation>无法读取翻译文件 %1。</translation>
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
        <source>Closes the window and leaves the material as it was last applied</source>
        <translation>关闭窗口，材料保持上次应用时的状态</translation>
    </message>
    <message>
        <source>Removes all properties from the table</source>
        <translation>从表格中移除所有属性</translation>
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
        <source>Something went wrong: %1</source>
        <translation>出现错误：%1</translation>
    </message>
    <message>
        <source>the reason is not known</source>
        <translation>原因未知</translation>
    </message>
    <message>
        <source>The changes of &quot;%1&quot; have not been applied.</source>
        <translation>“%1”的更改尚未应用。</translation>
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
        <translation>输入 &quot;Mises&quot;, &quot;Mohr-Coulomb&quot; 或 &quot;Drucker-Prager&quot;</translation>
    </message>
    <message>
        <source>Input &quot;Bilinear&quot;, &quot;Multilinear&quot;, &quot;Swift&quot;, &quot;Ramberg-Osgood&quot;, &quot;Kinematic&quot;, or &quot;Combined&quot;</source>
        <translation>输入 &quot;Bilinear&quot;, &quot;Multilinear&quot;, &quot;Swift&quot;, &quot;Ramberg-Osgood&quot;, &quot;Kinematic&quot; 或 &quot;Combined&quot;</translation>
    </message>
    <message>
        <source>Vector; values are separated by comma</source>
        <translation>向量；数值以逗号分隔</translation>
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
    <name>StandardCommand</name>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Materials for finite-element simulation: 26 ready-made materials, 36 quantities, and the documents and cards that the solver reads.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;用于有限元仿真的材料：26 种现成材料、36 种物理量，以及求解器读取的文档和卡片。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>Take back the last change</source>
        <translation>撤销上一次更改</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Make again the change that was taken back</source>
        <translation>重新执行已撤销的更改</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the selected materials</source>
        <translation>复制所选材料</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Add the copied materials to the project</source>
        <translation>将已复制的材料添加到项目</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>生成副本(&amp;L)</translation>
    </message>
    <message>
        <source>Add a copy of each selected material</source>
        <translation>为每种所选材料添加一个副本</translation>
    </message>
    <message>
        <source>&amp;Suppress</source>
        <translation>抑制(&amp;S)</translation>
    </message>
    <message>
        <source>Take the selected materials out of use</source>
        <translation>停用所选材料</translation>
    </message>
    <message>
        <source>U&amp;nsuppress</source>
        <translation>取消抑制(&amp;N)</translation>
    </message>
    <message>
        <source>Take the selected materials into use again</source>
        <translation>重新启用所选材料</translation>
    </message>
    <message>
        <source>Rena&amp;me</source>
        <translation>重命名(&amp;M)</translation>
    </message>
    <message>
        <source>Give the selected material another label</source>
        <translation>更改所选材料的标签</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Select all materials of the project</source>
        <translation>选择项目中的所有材料</translation>
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
        <source>What this program is</source>
        <translation>关于本程序</translation>
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
</context>
<context>
    <name>Gui::Command</name>
    <message>
        <source>The command &quot;%1&quot; failed: %2</source>
        <translation>命令“%1”失败：%2</translation>
    </message>
    <message>
        <source>the reason is not known</source>
        <translation>原因未知</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>没有命令“%1”。</translation>
    </message>
</context>
<context>
    <name>Gui::EditCommands</name>
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
</context>
<context>
    <name>Gui::PictureFactory</name>
    <message>
        <source>The picture %1 is missing.</source>
        <translation>缺少图片 %1。</translation>
    </message>
</context>
<context>
    <name>Gui::ObjectClipboard</name>
    <message>
        <source>An object cannot be pasted: %1</source>
        <translation>无法粘贴对象：%1</translation>
    </message>
</context>
<context>
    <name>Gui::WelcomePage</name>
    <message>
        <source>No project is open</source>
        <translation>没有打开的项目</translation>
    </message>
    <message>
        <source>The project has no materials yet</source>
        <translation>项目中还没有材料</translation>
    </message>
    <message>
        <source>No material is open</source>
        <translation>没有打开的材料</translation>
    </message>
    <message>
        <source>A material project holds the materials of a model. Begin with a new one.</source>
        <translation>材料项目包含模型的材料。请先新建一个。</translation>
    </message>
    <message>
        <source>Add a material; it begins as structural steel, and the editor offers 25 others and every quantity.</source>
        <translation>添加一种材料；初始为结构钢，编辑器提供另外 25 种材料和所有物理量。</translation>
    </message>
    <message>
        <source>Double-click a material in the project explorer, or select one and choose Edit.</source>
        <translation>在项目浏览器中双击一种材料，或选择一种后点击“编辑”。</translation>
    </message>
    <message>
        <source>The materials module is missing</source>
        <translation>缺少材料模块</translation>
    </message>
    <message>
        <source>The messages tell why it could not be loaded.</source>
        <translation>无法加载的原因见消息。</translation>
    </message>
    <message>
        <source>A material project holds the materials of a model. Begin with a new one, or open a saved one.</source>
        <translation>材料项目包含模型的材料。请新建一个，或打开已保存的项目。</translation>
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
</context>
<context>
    <name>Gui::ProjectExplorer</name>
    <message>
        <source>Project explorer</source>
        <translation>项目浏览器</translation>
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
    <message>
        <source>&quot;%1&quot; cannot be &quot;%2&quot;; it stays as it was.</source>
        <translation>“%1”不能为“%2”；保持原值。</translation>
    </message>
</context>
<context>
    <name>kelta</name>
    <message>
        <source>Changes in open editors have not been applied.</source>
        <translation>打开的编辑器中的更改尚未应用。</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; and its materials are not kept.</source>
        <translation>项目“%1”及其材料不会被保留。</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>关闭程序</translation>
    </message>
    <message>
        <source>Close the program all the same?</source>
        <translation>仍要关闭程序吗？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened without the materials module.</source>
        <translation>没有材料模块，无法打开“%1”。</translation>
    </message>
</context>
<context>
    <name>kelta::Batch</name>
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
        <source>nothing in the current project is labelled &quot;%1&quot;</source>
        <translation>当前项目中没有标签为“%1”的对象</translation>
    </message>
    <message>
        <source>there is no such project</source>
        <translation>没有这样的项目</translation>
    </message>
    <message>
        <source>one label, and one selected object, are needed</source>
        <translation>需要一个标签和一个所选对象</translation>
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
        <source>no argument is taken</source>
        <translation>不接受参数</translation>
    </message>
    <message>
        <source>the name of a library material, and one selected material, are needed</source>
        <translation>需要一个库材料名称和一种所选材料</translation>
    </message>
    <message>
        <source>the library has no material &quot;%1&quot;</source>
        <translation>材料库中没有“%1”</translation>
    </message>
    <message>
        <source>a quantity and its value, and one selected material, are needed</source>
        <translation>需要一个物理量及其值，以及一种所选材料</translation>
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
        <source>the materials are not ready</source>
        <translation>材料尚未就绪</translation>
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
        <source>the catalogue does not know it; its unit, description and category are lost</source>
        <translation>目录中没有它；它的单位、说明和类别已丢失</translation>
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
    <name>MatGui::ViewFeederMaterialObject</name>
    <message>
        <source>Show material</source>
        <translation>显示材料</translation>
    </message>
</context>
<context>
    <name>FileCommand</name>
    <message>
        <source>Open project</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>Import exchange document</source>
        <translation>导入交换文档</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>Open a material project from a file</source>
        <translation>从文件打开材料项目</translation>
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
        <source>I&amp;mport exchange document...</source>
        <translation>导入交换文档(&amp;M)...</translation>
    </message>
    <message>
        <source>Add the materials of an exchange document to the project</source>
        <translation>将交换文档中的材料添加到项目</translation>
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
        <source>Material project (*.vxmat)</source>
        <translation>材料项目 (*.vxmat)</translation>
    </message>
    <message>
        <source>Exchange document (*.json)</source>
        <translation>交换文档 (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>kelta::MaterialChange</name>
    <message>
        <source>Change &quot;%1&quot;</source>
        <translation>更改“%1”</translation>
    </message>
</context>
<context>
    <name>kelta::ProjectFiles</name>
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
        <source>What is saved by one of the programs replaces what the other one saved.</source>
        <translation>一个程序保存的内容会替换另一个程序保存的内容。</translation>
    </message>
    <message>
        <source>&amp;Use all the same</source>
        <translation>仍然使用(&amp;U)</translation>
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
        <source>Material project (*.vxmat)</source>
        <translation>材料项目 (*.vxmat)</translation>
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
        <source>&quot;%1&quot; has been there since %2, before the project was recovered.</source>
        <translation>“%1”自 %2 起就已存在，早于项目恢复。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been changed by another program, on %2.</source>
        <translation>“%1”已于 %2 被另一个程序更改。</translation>
    </message>
    <message>
        <source>What is in the file now is lost when it is replaced.</source>
        <translation>替换后，文件中现有的内容将丢失。</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
    </message>
    <message>
        <source>The changes of &quot;%1&quot; in its editor have not been applied.</source>
        <translation>编辑器中对“%1”的更改尚未应用。</translation>
    </message>
    <message>
        <source>Only what has been applied is saved.</source>
        <translation>只保存已应用的内容。</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
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
        <source>Materials imported: %1</source>
        <translation>已导入的材料：%1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>The object &quot;%1&quot; is of the class &quot;%2&quot;, which is none of a material</source>
        <translation>对象“%1”属于类“%2”，该类不是材料类</translation>
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
</context>
<context>
    <name>projectfile::ProjectFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>文件是空的。</translation>
    </message>
    <message>
        <source>This is no project file: its member &quot;format&quot; is not &quot;%1&quot;.</source>
        <translation>这不是项目文件：其成员“format”不是“%1”。</translation>
    </message>
    <message>
        <source>The file was written by a later version of the program, in version %1 of the format; this program reads up to version %2.</source>
        <translation>该文件由更新版本的程序写入，格式版本为 %1；本程序最高可读取版本 %2。</translation>
    </message>
</context>
</TS>

// Placeholder for the devices, deleted (the whole folder) by whoever brings the real ones.
#pragma once
#include "ProcSimIOPluginIf.h"
#include <vector>
namespace nsProc {
class StubDev : public ProcSimIOPluginIf { public:
 int m_addr=0; int m_dir=2; std::vector<int> m_v; size_t m_p=0;
 QWidget* ioDevWidget() override {return nullptr;} void setName(QString) override{} void setBase(int) override{}
 void setMemSize(int) override{} void setDirection(eDirection_t d) override{m_dir=d;}
 bool chkDirection(eDirection_t d) override{ return d==eDirectionWr? m_dir!=0 : d==eDirectionRd? m_dir!=1 : m_dir==2;}
 void setBaseAddr(int a,QString) override{m_addr=a;} bool chkAddr(int a) override{return a==m_addr;}
 void setHighlightEn(bool) override{} void clearHighlighted() override{} void clear() override{m_p=0;}
};
class ProcSimIOReg8Bit : public StubDev { public: int m_value=0; void initValue(unsigned int* v,int n) override{ if(n>0) m_value=int(v[0]);} void setValue(int,QString,int v) override{m_value=v;} bool value(int,QString,int* v) override{*v=m_value;return true;} };
class ProcSimIOFifo : public StubDev { public: ProcSimIOFifo(int){} void initValue(unsigned int* v,int n) override{m_v.assign(v,v+n);} void setValue(int,QString,int v) override{ if(m_p<m_v.size()) m_v[m_p]=v; else m_v.push_back(v); ++m_p;} bool value(int,QString,int* v) override{ if(m_p>=m_v.size()) return false; *v=m_v[m_p++]; return true;} QString lineText(int l) const { return size_t(l)<m_v.size()?QString::number(m_v[size_t(l)],16):QString(); } };
class ProcSimIOMem : public StubDev { public: ProcSimIOMem(int){} void setMemSize(int n) override{m_v.resize(size_t(n));} bool chkAddr(int a) override{return a>=m_addr&&a<m_addr+int(m_v.size());} void initValue(unsigned int* v,int n) override{m_v.assign(v,v+n);} void setValue(int a,QString,int v) override{ if(size_t(a)<m_v.size()) m_v[size_t(a)]=v;} bool value(int a,QString,int* v) override{ if(size_t(a)>=m_v.size()) return false; *v=m_v[size_t(a)]; return true;} };
}
